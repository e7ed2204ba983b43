#pragma once
#include "desktop/session/x11/X11Connection.h"

#include <QRect>

namespace brimshade::desktop::session {

// A docked window, which fills its frame.
struct ButtonTarget {
    xcb_window_t window = XCB_WINDOW_NONE;
    xcb_window_t frame = XCB_WINDOW_NONE;
    QRect area; // of the frame, in the root window
};

// A press and a release in the middle of a docked window, without the user's pointer being moved. Waits for answers of
// the server.
void sendClick(X11Connection &x11, const ButtonTarget &target, std::uint8_t button, xcb_timestamp_t time);

} // namespace brimshade::desktop::session
