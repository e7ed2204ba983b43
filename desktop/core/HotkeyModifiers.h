#pragma once
#include "platform/Application.h"
#include "platform/HotkeyCenter.h"

namespace brimshade::desktop {

inline constexpr std::uint32_t kCarbonShift = 0x0200;

// A key event's modifiers as hotkeys are registered with them.
inline std::uint32_t carbonModifiers(std::uint64_t modifierFlags)
{
    std::uint32_t modifiers = 0;
    if (modifierFlags & platform::kCommandFlag)
        modifiers |= platform::kCarbonCommand;
    if (modifierFlags & platform::kShiftFlag)
        modifiers |= kCarbonShift;
    if (modifierFlags & platform::kOptionFlag)
        modifiers |= platform::kCarbonOption;
    if (modifierFlags & platform::kControlFlag)
        modifiers |= platform::kCarbonControl;
    return modifiers;
}

} // namespace brimshade::desktop
