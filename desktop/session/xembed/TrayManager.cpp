#include "TrayManager.h"

#include <chrono>
#include <xcb/composite.h>
#include <xcb/res.h>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace brimshade::desktop::session {

namespace {

constexpr std::size_t kMostWindows = 64;
constexpr std::uint32_t kRequestDock = 0; // the opcode; the others concern balloons
constexpr auto kBeat = 100ms; // windows that draw all the time are looked at together
constexpr int kMostEmptyLooks = 5; // at a new window, before it is shown without a picture

template <class Event> const Event &as(const xcb_generic_event_t &event)
{
    return reinterpret_cast<const Event &>(event);
}

// An extension works only after its version has been asked for.
void askVersions(xcb_connection_t *connection)
{
    xcb_discard_reply(connection, xcb_composite_query_version(connection, 0, 4).sequence);
    xcb_discard_reply(connection, xcb_damage_query_version(connection, 1, 1).sequence);
    xcb_discard_reply(connection, xcb_res_query_version(connection, 1, 2).sequence);
}

// Waits until the server has carried out every request: if a connection is closed with unread events, requests that the
// server has not read may be lost.
void finish(xcb_connection_t *connection)
{
    const X11Reply<xcb_get_input_focus_reply_t> done(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
}

bool hasExtensions(xcb_connection_t *connection)
{
    for (xcb_extension_t *extension : {&xcb_composite_id, &xcb_damage_id, &xcb_res_id}) {
        const auto *data = xcb_get_extension_data(connection, extension);
        if (!data || !data->present)
            return false;
    }
    return true;
}

} // namespace

TrayManager::TrayManager(int side) : m_side(side) { }

TrayManager::~TrayManager()
{
    leaveAll();
    m_selection.reset();
    if (m_x11)
        finish(m_x11->xcb());
}

void TrayManager::begin()
{
    m_x11 = X11Connection::open();
    if (!m_x11)
        return; // without a display there is nothing left at all
    if (!hasExtensions(m_x11->xcb())) {
        Q_EMIT message(u"Tray: the X server lacks an extension that XEmbed tray icons need"_s);
        return;
    }
    askVersions(m_x11->xcb());
    m_look = std::make_unique<QTimer>();
    m_look->setSingleShot(true);
    connect(m_look.get(), &QTimer::timeout, this, &TrayManager::lookAtAll);
    connect(m_x11.get(), &X11Connection::eventCame, this, &TrayManager::handle);
    m_clicks = std::make_unique<DockedClicks>(*m_x11);
    m_selection = std::make_unique<TraySelection>(*m_x11);
    connect(m_selection.get(), &TraySelection::lost, this, &TrayManager::leaveAll);
    connect(m_selection.get(), &TraySelection::timeCame, m_clicks.get(), &DockedClicks::makeAt);
    connect(m_clicks.get(), &DockedClicks::timeNeeded, m_selection.get(), &TraySelection::askTime);
    connect(m_clicks.get(), &DockedClicks::due, this, [this](const DockedClick &click, xcb_timestamp_t time) {
        if (const auto found = m_windows.find(click.window); found != m_windows.end())
            found->second.window->click(click, time);
    });
}

void TrayManager::click(const DockedClick &click)
{
    if (m_clicks && m_windows.contains(click.window))
        m_clicks->ask(click);
}

void TrayManager::lapseClicks()
{
    if (m_clicks)
        m_clicks->lapse();
}

void TrayManager::handle(const xcb_generic_event_t &event)
{
    if (m_x11->isEventOf(event, xcb_damage_id, XCB_DAMAGE_NOTIFY))
        return look(as<xcb_damage_notify_event_t>(event).drawable);
    switch (event.response_type & 0x7f) {
    case XCB_CLIENT_MESSAGE:
        return handleWish(as<xcb_client_message_event_t>(event));
    case XCB_PROPERTY_NOTIFY:
        return handleProperty(as<xcb_property_notify_event_t>(event));
    case XCB_MAP_NOTIFY:
        return mapped(as<xcb_map_notify_event_t>(event).window, true);
    case XCB_UNMAP_NOTIFY:
        return mapped(as<xcb_unmap_notify_event_t>(event).window, false);
    case XCB_DESTROY_NOTIFY:
        return leave(as<xcb_destroy_notify_event_t>(event).window);
    case XCB_REPARENT_NOTIFY: {
        const auto &moved = as<xcb_reparent_notify_event_t>(event);
        const auto found = m_windows.find(moved.window);
        if (found != m_windows.end() && moved.parent != found->second.window->frame())
            leave(moved.window);
        return;
    }
    case XCB_MAP_REQUEST:
        xcb_map_window(m_x11->xcb(), as<xcb_map_request_event_t>(event).window);
        return;
    case XCB_CONFIGURE_REQUEST:
        if (const auto found = m_windows.find(as<xcb_configure_request_event_t>(event).window);
            found != m_windows.end())
            found->second.window->refuseGeometry();
        return;
    default:
        return;
    }
}

void TrayManager::handleWish(const xcb_client_message_event_t &message)
{
    const bool isForTray = message.type == m_x11->atom(X11Atom::NetSystemTrayOpcode) && message.format == 32
        && m_selection && message.window == m_selection->window();
    if (isForTray && message.data.data32[1] == kRequestDock)
        dock(message.data.data32[2]);
}

void TrayManager::handleProperty(const xcb_property_notify_event_t &change)
{
    const auto found = m_windows.find(change.window);
    if (found == m_windows.end())
        return;
    if (change.atom == m_x11->atom(X11Atom::XEmbedInfo))
        return found->second.window->followWish();
    const bool isText = change.atom == XCB_ATOM_WM_CLASS || change.atom == XCB_ATOM_WM_NAME
        || change.atom == m_x11->atom(X11Atom::NetWmName);
    if (!isText)
        return;
    found->second.areTextsOld = true;
    look(change.window);
}

void TrayManager::dock(xcb_window_t window)
{
    if (m_windows.contains(window))
        return;
    if (m_windows.size() >= kMostWindows) {
        if (!std::exchange(m_saidFull, true))
            Q_EMIT message(u"Tray: too many icons are docked; only the first ones are shown"_s);
        return;
    }
    if (auto docked = DockedWindow::dock(*m_x11, window, m_side))
        m_windows[window].window = std::move(docked);
}

void TrayManager::mapped(xcb_window_t window, bool isMapped)
{
    const auto found = m_windows.find(window);
    if (found == m_windows.end())
        return;
    found->second.window->mapped(isMapped);
    if (isMapped)
        look(window);
    else
        forget(found->second);
}

void TrayManager::leave(xcb_window_t window)
{
    const auto found = m_windows.find(window);
    if (found == m_windows.end())
        return;
    found->second.window->taken();
    forget(found->second);
    m_windows.erase(found);
}

void TrayManager::leaveAll()
{
    for (auto &[window, docked] : m_windows)
        forget(docked);
    m_windows.clear();
}

void TrayManager::look(xcb_window_t window)
{
    m_unseen.insert(window);
    if (!m_look->isActive())
        m_look->start(kBeat);
}

void TrayManager::lookAtAll()
{
    for (const xcb_window_t window : std::exchange(m_unseen, {})) {
        const auto found = m_windows.find(window);
        if (found != m_windows.end() && found->second.window->isShown())
            tell(window, found->second);
    }
}

void TrayManager::tell(xcb_window_t window, Docked &docked)
{
    if (std::exchange(docked.areTextsOld, false))
        docked.window->readTexts();
    docked.window->readPicture();
    const DockedItem &item = docked.window->item();
    const bool isNew = docked.told.window == XCB_WINDOW_NONE;
    if (isNew && item.picture.isNull() && ++docked.emptyLooks < kMostEmptyLooks)
        return look(window);
    if (docked.told == item)
        return;
    docked.told = item;
    Q_EMIT changed(item);
}

void TrayManager::forget(Docked &docked)
{
    if (std::exchange(docked.told, {}).window != XCB_WINDOW_NONE)
        Q_EMIT gone(docked.window->item().window);
    docked.emptyLooks = 0;
}

} // namespace brimshade::desktop::session
