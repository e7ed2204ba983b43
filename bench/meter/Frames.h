#pragma once
#include <memory>

namespace brimshade::bench {

// What changes on a display.
class Frames {
public:
    virtual ~Frames() = default;

    // The area in pixels of the box around what changes in the next frame that changes anything; 0 when none has come
    // by then. Waits on the display's connection.
    virtual long next(double seconds) = 0;
};

std::unique_ptr<Frames> waylandFrames(); // of the first output of $WAYLAND_DISPLAY, by wlr-screencopy; null without it
std::unique_ptr<Frames>
x11Frames(); // of the root window of $DISPLAY and all in it, by the Damage extension; null without

} // namespace brimshade::bench
