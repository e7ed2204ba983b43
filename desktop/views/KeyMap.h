#pragma once
#include "platform/Application.h"

#include <QKeyEvent>
#include <optional>

// Maps between the toolkit's keys and virtual key codes. The codes are those of an ANSI keyboard, and a key is found by
// what it types, so that a shortcut is where its letter is.
namespace brimshade::desktop {

std::optional<std::uint16_t> keyCodeFor(Qt::Key key, bool isKeypad);
Qt::Key keyFor(std::uint16_t keyCode); // Key_unknown when there is none

// Super is Command, Alt is Option.
std::uint64_t modifierFlagsFor(Qt::KeyboardModifiers modifiers);
Qt::KeyboardModifiers modifiersFor(std::uint64_t modifierFlags);

// Nothing for a modifier alone, or for a key that such a keyboard lacks, unless it types something.
std::optional<platform::Event> keyDownFor(const QKeyEvent &event);

} // namespace brimshade::desktop
