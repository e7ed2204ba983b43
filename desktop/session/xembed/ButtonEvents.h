#pragma once
#include "desktop/session/x11/X11Connection.h"

#include <QRect>

namespace brimshade::desktop::session {

// A docked window, which fills its frame.
struct ButtonTarget {
    xcb_window_t window = XCB_WINDOW_NONE;
    xcb_window_t frame = XCB_WINDOW_NONE;
    QRect area; // the frame's, in the root window
};

// Sends a press and a release to the middle of a docked window, without moving the user's pointer. Waits for answers
// from the server.
void sendClick(X11Connection &x11, const ButtonTarget &target, std::uint8_t button, xcb_timestamp_t time);

} // namespace brimshade::desktop::session
