#include "X11Foreground.h"

#include "NativePixels.h"
#include "ShownSurfaces.h"

#include <QGuiApplication>
#include <algorithm>
#include <optional>
#include <ranges>

namespace brimshade::desktop::session {

namespace {

constexpr std::uint32_t kAllDesktops = 0xffffffff;
constexpr std::size_t kMostClients = 1024;

bool contains(const std::vector<std::uint32_t> &values, std::uint32_t value)
{
    return std::ranges::find(values, value) != values.end();
}

} // namespace

struct X11Foreground::Client {
    xcb_window_t window = XCB_WINDOW_NONE;
    QRect frame; // in the root window
    bool isSeen = false; // an ordinary window, on this desktop, not minimised
    bool isFullScreen = false;
};

struct X11Foreground::Reads {
    xcb_window_t window;
    xcb_get_property_cookie_t type;
    xcb_get_property_cookie_t state;
    xcb_get_property_cookie_t desktop;
    xcb_get_geometry_cookie_t size;
    xcb_translate_coordinates_cookie_t corner;
};

X11Foreground::X11Foreground(X11Connection &connection, const ShownSurfaces &shown)
    : m_connection(connection), m_shown(shown)
{
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(connection.xcb(), connection.root(), XCB_CW_EVENT_MASK, &mask);
    connect(&connection, &X11Connection::eventCame, this, &X11Foreground::handle);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &X11Foreground::updateSoon);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &X11Foreground::updateSoon);
    update();
}

void X11Foreground::handle(const xcb_generic_event_t &event)
{
    if ((event.response_type & 0x7f) != XCB_PROPERTY_NOTIFY)
        return;
    const auto &change = reinterpret_cast<const xcb_property_notify_event_t &>(event);
    using enum X11Atom;
    for (const X11Atom watched :
         {NetActiveWindow, NetClientListStacking, NetCurrentDesktop, NetWmDesktop, NetWmState}) {
        if (change.atom == m_connection.atom(watched))
            return updateSoon();
    }
}

// Combines updates, because a window manager changes several properties at a time.
void X11Foreground::updateSoon()
{
    if (std::exchange(m_isStale, true))
        return;
    QMetaObject::invokeMethod(this, &X11Foreground::update, Qt::QueuedConnection);
}

void X11Foreground::update()
{
    m_isStale = false;
    const auto activeRead = m_connection.requestNumbers(m_connection.root(), X11Atom::NetActiveWindow);
    const auto clientsRead = m_connection.requestNumbers(m_connection.root(), X11Atom::NetClientListStacking);
    const auto desktopRead = m_connection.requestNumbers(m_connection.root(), X11Atom::NetCurrentDesktop);
    const auto actives = m_connection.numbers(activeRead);
    auto clients = m_connection.numbers(clientsRead);
    const auto desktops = m_connection.numbers(desktopRead);
    clients.resize(std::min(clients.size(), kMostClients));
    follow(clients);

    const xcb_window_t active = actives.empty() ? xcb_window_t(XCB_WINDOW_NONE) : actives.front();
    const auto seen = seenClients(clients, desktops.empty() ? kAllDesktops : desktops.front());
    QSet<const QScreen *> covered;
    for (const QScreen *screen : QGuiApplication::screens()) {
        if (covers(screen, seen, active))
            covered.insert(screen);
    }
    setCoveredScreens(covered);
    if (active != XCB_WINDOW_NONE || !m_shown.haveKeyboard())
        setApplication(active != XCB_WINDOW_NONE ? className(active) : QString());
}

void X11Foreground::follow(const std::vector<std::uint32_t> &clients)
{
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    for (const xcb_window_t client : clients) {
        if (!m_followed.contains(client))
            xcb_change_window_attributes(m_connection.xcb(), client, XCB_CW_EVENT_MASK, &mask);
    }
    m_followed = QSet<xcb_window_t>(clients.begin(), clients.end());
}

std::vector<X11Foreground::Client> X11Foreground::seenClients(const std::vector<std::uint32_t> &clients,
                                                              std::uint32_t desktop) const
{
    std::vector<Reads> reads;
    reads.reserve(clients.size());
    for (const xcb_window_t client : clients)
        reads.push_back(request(client));
    std::vector<Client> seen;
    for (const Reads &of : reads) {
        const Client client = read(of, desktop);
        if (client.isSeen)
            seen.push_back(client);
    }
    return seen;
}

X11Foreground::Reads X11Foreground::request(xcb_window_t window) const
{
    return {window,
            m_connection.requestNumbers(window, X11Atom::NetWmWindowType),
            m_connection.requestNumbers(window, X11Atom::NetWmState),
            m_connection.requestNumbers(window, X11Atom::NetWmDesktop),
            xcb_get_geometry(m_connection.xcb(), window),
            xcb_translate_coordinates(m_connection.xcb(), window, m_connection.root(), 0, 0)};
}

X11Foreground::Client X11Foreground::read(const Reads &reads, std::uint32_t desktop) const
{
    const auto types = m_connection.numbers(reads.type);
    const auto states = m_connection.numbers(reads.state);
    const auto desktops = m_connection.numbers(reads.desktop);
    const X11Reply<xcb_get_geometry_reply_t> size(xcb_get_geometry_reply(m_connection.xcb(), reads.size, nullptr));
    const X11Reply<xcb_translate_coordinates_reply_t> corner(
        xcb_translate_coordinates_reply(m_connection.xcb(), reads.corner, nullptr));
    if (!size || !corner)
        return {};
    const bool isOrdinary = !contains(types, m_connection.atom(X11Atom::NetWmWindowTypeDock))
        && !contains(types, m_connection.atom(X11Atom::NetWmWindowTypeDesktop));
    const bool isHere = desktops.empty() || desktops.front() == desktop || desktops.front() == kAllDesktops;
    return {.window = reads.window,
            .frame = {corner->dst_x, corner->dst_y, size->width, size->height},
            .isSeen = isOrdinary && isHere && !contains(states, m_connection.atom(X11Atom::NetWmStateHidden)),
            .isFullScreen = contains(states, m_connection.atom(X11Atom::NetWmStateFullscreen))};
}

// clients: from bottom to top.
bool X11Foreground::covers(const QScreen *screen, const std::vector<Client> &clients, xcb_window_t active) const
{
    const QRect area = nativeGeometry(screen);
    std::optional<bool> uppermost;
    for (const Client &client : clients | std::views::reverse) {
        if (!area.contains(client.frame.center()))
            continue;
        if (client.isFullScreen && client.window == active)
            return true;
        if (!uppermost)
            uppermost = client.isFullScreen;
    }
    return uppermost.value_or(false);
}

// WM_CLASS holds two strings: the instance and the class.
QString X11Foreground::className(xcb_window_t window) const
{
    const auto value = m_connection.bytes(m_connection.requestText(window, XCB_ATOM_WM_CLASS));
    const auto names = value.split('\0');
    return QString::fromLocal8Bit(names.value(1, names.value(0)));
}

} // namespace brimshade::desktop::session
