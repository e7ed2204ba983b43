#include "X11Focus.h"

#include "desktop/session/x11/X11Connection.h"

#include <algorithm>

namespace brimshade::desktop::session {

void X11Focus::take(xcb_window_t window)
{
    if (std::ranges::find(m_takers, window) != m_takers.end())
        return;
    if (m_takers.empty())
        m_before = focused();
    m_takers.push_back(window);
    m_pressed = XCB_CURRENT_TIME;
    focus(window, XCB_CURRENT_TIME);
    xcb_flush(m_connection);
}

void X11Focus::giveBack(xcb_window_t window)
{
    const auto found = std::ranges::find(m_takers, window);
    if (found == m_takers.end())
        return;
    // Nothing may happen between reading the focus and changing it, so that a window that was just clicked keeps the
    // keys.
    xcb_grab_server(m_connection);
    const bool isOurs = std::ranges::find(m_takers, focused()) != m_takers.end();
    m_takers.erase(found);
    // The server honours the request with the latest time: the window manager's, which has the press's time, beats this
    // one.
    const xcb_timestamp_t time = m_pressed == XCB_CURRENT_TIME ? XCB_CURRENT_TIME : m_pressed - 1;
    if (isOurs)
        focus(m_takers.empty() ? m_before : m_takers.back(), time);
    xcb_ungrab_server(m_connection);
    xcb_flush(m_connection);
}

xcb_window_t X11Focus::focused() const
{
    const X11Reply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    return reply ? reply->focus : xcb_window_t(XCB_INPUT_FOCUS_POINTER_ROOT);
}

// The window may be gone by then; the error is ignored, and the keys go to whatever is under the pointer.
void X11Focus::focus(xcb_window_t window, xcb_timestamp_t time) const
{
    const auto cookie = xcb_set_input_focus_checked(m_connection, XCB_INPUT_FOCUS_POINTER_ROOT, window, time);
    xcb_discard_reply(m_connection, cookie.sequence);
}

} // namespace brimshade::desktop::session
