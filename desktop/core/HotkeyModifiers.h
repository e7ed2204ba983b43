#pragma once
#include "platform/Application.h"
#include "platform/HotkeyCenter.h"

namespace brimshade::desktop {

// A key event's modifiers as hotkeys are registered with them.
inline std::uint32_t carbonModifiers(std::uint64_t modifierFlags)
{
    std::uint32_t modifiers = 0;
    if (modifierFlags & platform::kCommandFlag)
        modifiers |= platform::kCarbonCommand;
    if (modifierFlags & platform::kShiftFlag)
        modifiers |= platform::kCarbonShift;
    if (modifierFlags & platform::kOptionFlag)
        modifiers |= platform::kCarbonOption;
    if (modifierFlags & platform::kControlFlag)
        modifiers |= platform::kCarbonControl;
    return modifiers;
}

} // namespace brimshade::desktop
