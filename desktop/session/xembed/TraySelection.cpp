#include "TraySelection.h"

#include "WindowPicture.h"

#include <xcb/xfixes.h>

namespace brimshade::desktop::session {

namespace {

constexpr std::uint32_t kXFixesVersion = 2; // for the selection's events
constexpr std::uint32_t kHorizontal = 0;

} // namespace

TraySelection::TraySelection(X11Connection &x11) : m_x11(x11)
{
    connect(&x11, &X11Connection::eventCame, this, &TraySelection::handle);
    xcb_discard_reply(x11.xcb(), xcb_xfixes_query_version(x11.xcb(), kXFixesVersion, 0).sequence);
    xcb_xfixes_select_selection_input(x11.xcb(), x11.root(), x11.atom(X11Atom::SystemTray),
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER
                                          | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY
                                          | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    follow();
}

TraySelection::~TraySelection()
{
    leave();
}

void TraySelection::handle(const xcb_generic_event_t &event)
{
    if (m_x11.isEventOf(event, xcb_xfixes_id, XCB_XFIXES_SELECTION_NOTIFY))
        return follow();
    if ((event.response_type & 0x7f) != XCB_PROPERTY_NOTIFY)
        return;
    const auto &change = reinterpret_cast<const xcb_property_notify_event_t &>(event);
    if (change.window != m_window || change.atom != m_x11.atom(X11Atom::NetSystemTrayOrientation))
        return;
    if (m_isOwned)
        Q_EMIT timeCame(change.time);
    else
        take(change.time);
}

void TraySelection::follow()
{
    const xcb_window_t now = owner();
    if (now != m_window && m_isOwned)
        leave();
    if (now == XCB_WINDOW_NONE && m_window == XCB_WINDOW_NONE)
        prepare();
}

// Taking the selection needs the server's time, which the change of a property reveals.
void TraySelection::prepare()
{
    m_window = xcb_generate_id(m_x11.xcb());
    const std::uint32_t values[] = {true, XCB_EVENT_MASK_PROPERTY_CHANGE};
    xcb_create_window(m_x11.xcb(), XCB_COPY_FROM_PARENT, m_window, m_x11.root(), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK,
                      values);
    if (const auto visual = visualWithAlpha(m_x11.screen()))
        write(X11Atom::NetSystemTrayVisual, XCB_ATOM_VISUALID, visual);
    askTime();
}

void TraySelection::askTime()
{
    if (m_window != XCB_WINDOW_NONE)
        write(X11Atom::NetSystemTrayOrientation, XCB_ATOM_CARDINAL, kHorizontal);
}

void TraySelection::take(xcb_timestamp_t time)
{
    xcb_set_selection_owner(m_x11.xcb(), m_window, m_x11.atom(X11Atom::SystemTray), time);
    m_isOwned = owner() == m_window;
    if (!m_isOwned)
        return leave();
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = m_x11.root();
    message.type = m_x11.atom(X11Atom::Manager);
    message.data.data32[0] = time;
    message.data.data32[1] = m_x11.atom(X11Atom::SystemTray);
    message.data.data32[2] = m_window;
    xcb_send_event(m_x11.xcb(), false, m_x11.root(), XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                   reinterpret_cast<const char *>(&message));
}

void TraySelection::leave()
{
    if (m_window == XCB_WINDOW_NONE)
        return;
    if (std::exchange(m_isOwned, false))
        Q_EMIT lost();
    xcb_destroy_window(m_x11.xcb(), std::exchange(m_window, XCB_WINDOW_NONE));
}

xcb_window_t TraySelection::owner() const
{
    const auto cookie = xcb_get_selection_owner(m_x11.xcb(), m_x11.atom(X11Atom::SystemTray));
    const X11Reply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(m_x11.xcb(), cookie, nullptr));
    return reply ? reply->owner : xcb_window_t(XCB_WINDOW_NONE);
}

void TraySelection::write(X11Atom property, xcb_atom_t type, std::uint32_t value) const
{
    xcb_change_property(m_x11.xcb(), XCB_PROP_MODE_REPLACE, m_window, m_x11.atom(property), type, 32, 1, &value);
}

} // namespace brimshade::desktop::session
