#pragma once
#include "Dispatch.h"

#include <cstdint>
#include <expected>

namespace brimshade::platform {

// Carbon event modifier bits.
inline constexpr std::uint32_t kCarbonCommand = 0x0100;
inline constexpr std::uint32_t kCarbonShift = 0x0200;
inline constexpr std::uint32_t kCarbonOption = 0x0800;
inline constexpr std::uint32_t kCarbonControl = 0x1000;

struct EventHotKeyID {
    std::uint32_t signature = 0; // a four-character code, big-endian
    std::uint32_t number = 0;
};
using EventHotKeyRef = std::uint64_t; // never 0

// System-wide hotkeys. Main thread.
class HotkeyCenter {
public:
    virtual ~HotkeyCenter() = default;
    // The handler runs on the main thread for each press of any registered combination, until replaced.
    virtual void installEventHandler(Work handler) = 0;
    // The error is the system's OSStatus; a combination that is taken is refused.
    virtual std::expected<EventHotKeyRef, int> registerEventHotKey(std::uint32_t keyCode, std::uint32_t modifiers,
                                                                   EventHotKeyID id) = 0;
    virtual void unregisterEventHotKey(EventHotKeyRef ref) = 0;
};

} // namespace brimshade::platform
