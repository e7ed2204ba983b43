#pragma once
#include <vector>
#include <xcb/xcb.h>

namespace brimshade::desktop::session {

// Takes the keys for windows that the window manager does not manage, and gives them back to the window that had them
// before the first one took them. If another window has got the keys meanwhile, it keeps them. Main thread; on Qt's
// connection, so that requests stay in order with those that map and unmap the windows. Waits for one answer from the
// server.
class X11Focus {
public:
    explicit X11Focus(xcb_connection_t *connection) : m_connection(connection) { }

    void take(xcb_window_t window); // must be mapped
    void giveBack(xcb_window_t window); // call before it is unmapped; does nothing if it took none
    // A hand has pressed another program's window at that server time: the window manager gives it the keys, now or in
    // a moment, and our giving them back must not override that.
    void pressedElsewhere(xcb_timestamp_t time) { m_pressed = time; }

private:
    xcb_window_t focused() const;
    void focus(xcb_window_t window, xcb_timestamp_t time) const;

    xcb_connection_t *const m_connection;
    std::vector<xcb_window_t> m_takers; // the latest last
    xcb_timestamp_t m_pressed = XCB_CURRENT_TIME; // last press since the keys were taken; XCB_CURRENT_TIME for none
    xcb_window_t m_before = XCB_INPUT_FOCUS_POINTER_ROOT;
};

} // namespace brimshade::desktop::session
