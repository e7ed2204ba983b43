#pragma once
#include <vector>
#include <xcb/xcb.h>

namespace brimshade::desktop::session {

// Takes the keys for windows that the window manager does not manage, and gives them back to the window that had them
// before the first of them did. Who was given the keys by somebody else meanwhile keeps them. Main thread; on Qt's
// connection, so that requests stay in order with those that map and unmap the windows. Waits for one answer of the
// server.
class X11Focus {
public:
    explicit X11Focus(xcb_connection_t *connection) : m_connection(connection) { }

    void take(xcb_window_t window); // which is mapped
    void giveBack(xcb_window_t window); // before it is unmapped; nothing when it took none

private:
    xcb_window_t focused() const;
    void focus(xcb_window_t window) const;

    xcb_connection_t *const m_connection;
    std::vector<xcb_window_t> m_takers; // the latest last
    xcb_window_t m_before = XCB_INPUT_FOCUS_POINTER_ROOT;
};

} // namespace brimshade::desktop::session
