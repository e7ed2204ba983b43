#pragma once
#include "platform/Application.h"

#include <QKeyEvent>
#include <optional>

// Between the toolkit's keys and virtual key codes. The codes are those of an ANSI keyboard: a key is found by what it
// types, so that a shortcut is where the letter is.
namespace brimshade::desktop {

std::optional<std::uint16_t> keyCodeFor(Qt::Key key, bool isKeypad);
Qt::Key keyFor(std::uint16_t keyCode); // Key_unknown when there is none

// Super is Command, Alt is Option.
std::uint64_t modifierFlagsFor(Qt::KeyboardModifiers modifiers);
Qt::KeyboardModifiers modifiersFor(std::uint64_t modifierFlags);

// Nothing for a modifier alone, and for keys that such a keyboard lacks unless they type something.
std::optional<platform::Event> keyDownFor(const QKeyEvent &event);

} // namespace brimshade::desktop
