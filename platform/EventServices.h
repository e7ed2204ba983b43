#pragma once
#include "Geometry.h"

#include <cstdint>
#include <optional>

namespace brimshade::platform {

// CGEventType, CGEventFlags
enum CGEventType : int {
    kCGEventLeftMouseDown = 1,
    kCGEventLeftMouseUp = 2,
    kCGEventMouseMoved = 5,
    kCGEventLeftMouseDragged = 6,
};
inline constexpr std::uint64_t kCGEventFlagMaskCommand = 0x100000;

// A synthetic left-button event, as CGEventCreateMouseEvent makes it.
struct CGMouseEvent {
    CGEventType type = kCGEventMouseMoved;
    QPointF location; // display space
    std::uint64_t flags = 0;
    std::int64_t clickState = 0; // kCGMouseEventClickState
};

// Synthetic input, any thread. Events take effect in the order they are posted.
class EventServices {
public:
    virtual ~EventServices() = default;
    virtual void post(const CGMouseEvent &event) = 0; // at kCGHIDEventTap
    virtual std::optional<QPointF> pointerLocation() const = 0; // display space
    virtual void warpMouseCursorPosition(QPointF location) = 0; // display space; sends no event
};

} // namespace brimshade::platform
