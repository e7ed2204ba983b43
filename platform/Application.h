#pragma once
#include "Geometry.h"

#include <QString>
#include <cstdint>
#include <functional>
#include <optional>

namespace brimshade::platform {

// NSEventType, and the masks 1 << type
enum NSEventType : int {
    leftMouseDown = 1,
    leftMouseUp = 2,
    rightMouseDown = 3,
    rightMouseUp = 4,
    keyDown = 10,
};
using EventMask = std::uint64_t;
inline constexpr EventMask kLeftMouseDownMask = 1 << leftMouseDown;
inline constexpr EventMask kLeftMouseUpMask = 1 << leftMouseUp;
inline constexpr EventMask kRightMouseDownMask = 1 << rightMouseDown;
inline constexpr EventMask kRightMouseUpMask = 1 << rightMouseUp;
inline constexpr EventMask kKeyDownMask = 1 << keyDown;

// NSEventModifierFlags
inline constexpr std::uint64_t kShiftFlag = 0x20000;
inline constexpr std::uint64_t kControlFlag = 0x40000;
inline constexpr std::uint64_t kOptionFlag = 0x80000;
inline constexpr std::uint64_t kCommandFlag = 0x100000;

struct Event {
    NSEventType type = keyDown;
    std::uint64_t modifierFlags = 0;
    std::uint16_t keyCode = 0; // layout-independent virtual key code; key events only
    QString characters; // may be empty; key events only
    bool isARepeat = false; // the key is held; key events only
};

using MonitorToken = std::uint64_t; // 0: the system did not create the monitor

// The shared application object. Main thread.
class Application {
public:
    virtual ~Application() = default;

    virtual void setActivationPolicyAccessory() = 0; // no Dock icon, no application menus
    virtual void activate() = 0; // brings the application to the front
    virtual void terminate() = 0; // ends the event loop once it gets control back
    virtual std::optional<NSEventType> currentEventType() const = 0; // of the event being handled, if any
    virtual QPointF mouseLocation() const = 0; // screen space

    // Events on their way to other applications; they cannot be changed.
    virtual MonitorToken addGlobalMonitor(EventMask mask, std::function<void(const Event &)> handler) = 0;
    // Events on their way to this one; the handler returns the event to pass it on, nothing to swallow it.
    virtual MonitorToken addLocalMonitor(EventMask mask,
                                         std::function<std::optional<Event>(const Event &)> handler) = 0;
    virtual void removeMonitor(MonitorToken token) = 0;
};

} // namespace brimshade::platform
