#pragma once
#include <memory>

namespace brimshade::bench {

// What changes on a display.
class Frames {
public:
    virtual ~Frames() = default;

    // The area, in pixels, of the box around what changes in the next frame that changes anything; 0 if none comes in
    // that time. Waits on the display's connection.
    virtual long next(double seconds) = 0;
};

std::unique_ptr<Frames> waylandFrames(); // $WAYLAND_DISPLAY's first output, by wlr-screencopy; null without that
std::unique_ptr<Frames>
x11Frames(); // the root window of $DISPLAY and all in it, by the Damage extension; null without that

} // namespace brimshade::bench
