#pragma once
#include "platform/Application.h"

#include <QString>
#include <cstdint>

namespace brimshade::model {

// A virtual key code (platform/KeyCodes.h) and Carbon modifier bits.
struct KeyCombination {
    std::uint32_t keyCode = 0;
    std::uint32_t modifiers = 0;
    bool operator==(const KeyCombination &) const = default;
};

KeyCombination keyCombination(const platform::Event &event);
// Whether a global shortcut may take it from all other programs: a key that has a name, with Control, Option or
// Command, or a function key.
bool canBeGlobal(const KeyCombination &keys);
QString displayTitle(const KeyCombination &keys); // "⌃⌥Space"

} // namespace brimshade::model
