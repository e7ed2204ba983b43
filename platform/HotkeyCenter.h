#pragma once
#include "Application.h"

#include <QString>
#include <cstdint>
#include <expected>
#include <functional>

namespace brimshade::platform {

// Carbon event modifier bits.
inline constexpr std::uint32_t kCarbonCommand = 0x0100;
inline constexpr std::uint32_t kCarbonShift = 0x0200;
inline constexpr std::uint32_t kCarbonOption = 0x0800;
inline constexpr std::uint32_t kCarbonControl = 0x1000;

// A key event's modifiers as hotkeys are registered with them.
inline std::uint32_t carbonModifiers(std::uint64_t modifierFlags)
{
    return (modifierFlags & kCommandFlag ? kCarbonCommand : 0) | (modifierFlags & kShiftFlag ? kCarbonShift : 0)
        | (modifierFlags & kOptionFlag ? kCarbonOption : 0) | (modifierFlags & kControlFlag ? kCarbonControl : 0);
}

// Tells hotkeys apart. The same at every launch for the same purpose: a system that lets the user choose the keys
// remembers the choice under it.
struct EventHotKeyID {
    std::uint32_t signature = 0; // a four-character code, big-endian
    std::uint32_t number = 0;
    bool operator==(const EventHotKeyID &) const = default;
};
using EventHotKeyRef = std::uint64_t; // never 0

// System-wide hotkeys. Main thread.
class HotkeyCenter {
public:
    using Handler = std::function<void(EventHotKeyID)>;

    virtual ~HotkeyCenter() = default;
    // The handler runs on the main thread for each press of any registered combination, with the id that it was
    // registered with, until replaced.
    virtual void installEventHandler(Handler handler) = 0;
    // The error is the system's OSStatus; a combination that is taken, here or by another program, is refused.
    // purpose: what a press does, in the user's language, for systems that show it.
    virtual std::expected<EventHotKeyRef, int> registerEventHotKey(std::uint32_t keyCode, std::uint32_t modifiers,
                                                                   EventHotKeyID id, const QString &purpose) = 0;
    virtual void unregisterEventHotKey(EventHotKeyRef ref) = 0;

    // kHIHotKeyModeAllDisabled: until popped as often, neither this program's hotkeys fire nor, where the system can do
    // that, another's. Their keys go to the key window.
    virtual void pushSymbolicHotKeyMode() = 0;
    virtual void popSymbolicHotKeyMode() = 0;
};

} // namespace brimshade::platform
