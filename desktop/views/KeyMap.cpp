#include "KeyMap.h"

#include "platform/KeyCodes.h"

#include <array>

using namespace brimshade::platform;

namespace brimshade::desktop {

namespace {

struct KeyCode {
    Qt::Key key;
    VirtualKey code;
};

// Of several keys with one code, keyFor() returns the first.
constexpr std::array kKeys = std::to_array<KeyCode>({
    {Qt::Key_A, kVK_ANSI_A},
    {Qt::Key_S, kVK_ANSI_S},
    {Qt::Key_D, kVK_ANSI_D},
    {Qt::Key_F, kVK_ANSI_F},
    {Qt::Key_H, kVK_ANSI_H},
    {Qt::Key_G, kVK_ANSI_G},
    {Qt::Key_Z, kVK_ANSI_Z},
    {Qt::Key_X, kVK_ANSI_X},
    {Qt::Key_C, kVK_ANSI_C},
    {Qt::Key_V, kVK_ANSI_V},
    {Qt::Key_B, kVK_ANSI_B},
    {Qt::Key_Q, kVK_ANSI_Q},
    {Qt::Key_W, kVK_ANSI_W},
    {Qt::Key_E, kVK_ANSI_E},
    {Qt::Key_R, kVK_ANSI_R},
    {Qt::Key_Y, kVK_ANSI_Y},
    {Qt::Key_T, kVK_ANSI_T},
    {Qt::Key_1, kVK_ANSI_1},
    {Qt::Key_2, kVK_ANSI_2},
    {Qt::Key_3, kVK_ANSI_3},
    {Qt::Key_4, kVK_ANSI_4},
    {Qt::Key_6, kVK_ANSI_6},
    {Qt::Key_5, kVK_ANSI_5},
    {Qt::Key_Equal, kVK_ANSI_Equal},
    {Qt::Key_9, kVK_ANSI_9},
    {Qt::Key_7, kVK_ANSI_7},
    {Qt::Key_Minus, kVK_ANSI_Minus},
    {Qt::Key_8, kVK_ANSI_8},
    {Qt::Key_0, kVK_ANSI_0},
    {Qt::Key_BracketRight, kVK_ANSI_RightBracket},
    {Qt::Key_O, kVK_ANSI_O},
    {Qt::Key_U, kVK_ANSI_U},
    {Qt::Key_BracketLeft, kVK_ANSI_LeftBracket},
    {Qt::Key_I, kVK_ANSI_I},
    {Qt::Key_P, kVK_ANSI_P},
    {Qt::Key_Return, kVK_Return},
    {Qt::Key_L, kVK_ANSI_L},
    {Qt::Key_J, kVK_ANSI_J},
    {Qt::Key_Apostrophe, kVK_ANSI_Quote},
    {Qt::Key_K, kVK_ANSI_K},
    {Qt::Key_Semicolon, kVK_ANSI_Semicolon},
    {Qt::Key_Backslash, kVK_ANSI_Backslash},
    {Qt::Key_Comma, kVK_ANSI_Comma},
    {Qt::Key_Slash, kVK_ANSI_Slash},
    {Qt::Key_N, kVK_ANSI_N},
    {Qt::Key_M, kVK_ANSI_M},
    {Qt::Key_Period, kVK_ANSI_Period},
    {Qt::Key_Tab, kVK_Tab},
    {Qt::Key_Space, kVK_Space},
    {Qt::Key_QuoteLeft, kVK_ANSI_Grave},
    {Qt::Key_Backspace, kVK_Delete},
    {Qt::Key_Escape, kVK_Escape},
    {Qt::Key_Enter, kVK_ANSI_KeypadEnter},
    {Qt::Key_F5, kVK_F5},
    {Qt::Key_F6, kVK_F6},
    {Qt::Key_F7, kVK_F7},
    {Qt::Key_F3, kVK_F3},
    {Qt::Key_F8, kVK_F8},
    {Qt::Key_F9, kVK_F9},
    {Qt::Key_F11, kVK_F11},
    {Qt::Key_F10, kVK_F10},
    {Qt::Key_Menu, kVK_ContextualMenu},
    {Qt::Key_F12, kVK_F12},
    {Qt::Key_Home, kVK_Home},
    {Qt::Key_PageUp, kVK_PageUp},
    {Qt::Key_Delete, kVK_ForwardDelete},
    {Qt::Key_F4, kVK_F4},
    {Qt::Key_End, kVK_End},
    {Qt::Key_F2, kVK_F2},
    {Qt::Key_PageDown, kVK_PageDown},
    {Qt::Key_F1, kVK_F1},
    {Qt::Key_Left, kVK_LeftArrow},
    {Qt::Key_Right, kVK_RightArrow},
    {Qt::Key_Down, kVK_DownArrow},
    {Qt::Key_Up, kVK_UpArrow},
    // The same keys with Shift.
    {Qt::Key_Exclam, kVK_ANSI_1},
    {Qt::Key_At, kVK_ANSI_2},
    {Qt::Key_NumberSign, kVK_ANSI_3},
    {Qt::Key_Dollar, kVK_ANSI_4},
    {Qt::Key_AsciiCircum, kVK_ANSI_6},
    {Qt::Key_Percent, kVK_ANSI_5},
    {Qt::Key_Plus, kVK_ANSI_Equal},
    {Qt::Key_ParenLeft, kVK_ANSI_9},
    {Qt::Key_Ampersand, kVK_ANSI_7},
    {Qt::Key_Underscore, kVK_ANSI_Minus},
    {Qt::Key_Asterisk, kVK_ANSI_8},
    {Qt::Key_ParenRight, kVK_ANSI_0},
    {Qt::Key_BraceRight, kVK_ANSI_RightBracket},
    {Qt::Key_BraceLeft, kVK_ANSI_LeftBracket},
    {Qt::Key_QuoteDbl, kVK_ANSI_Quote},
    {Qt::Key_Colon, kVK_ANSI_Semicolon},
    {Qt::Key_Bar, kVK_ANSI_Backslash},
    {Qt::Key_Less, kVK_ANSI_Comma},
    {Qt::Key_Question, kVK_ANSI_Slash},
    {Qt::Key_Greater, kVK_ANSI_Period},
    {Qt::Key_Backtab, kVK_Tab},
    {Qt::Key_AsciiTilde, kVK_ANSI_Grave},
});

constexpr std::array kKeypad = std::to_array<KeyCode>({
    {Qt::Key_Period, kVK_ANSI_KeypadDecimal},
    {Qt::Key_Comma, kVK_ANSI_KeypadDecimal},
    {Qt::Key_Asterisk, kVK_ANSI_KeypadMultiply},
    {Qt::Key_Plus, kVK_ANSI_KeypadPlus},
    {Qt::Key_Slash, kVK_ANSI_KeypadDivide},
    {Qt::Key_Minus, kVK_ANSI_KeypadMinus},
    {Qt::Key_Equal, kVK_ANSI_KeypadEquals},
    {Qt::Key_0, kVK_ANSI_Keypad0},
    {Qt::Key_1, kVK_ANSI_Keypad1},
    {Qt::Key_2, kVK_ANSI_Keypad2},
    {Qt::Key_3, kVK_ANSI_Keypad3},
    {Qt::Key_4, kVK_ANSI_Keypad4},
    {Qt::Key_5, kVK_ANSI_Keypad5},
    {Qt::Key_6, kVK_ANSI_Keypad6},
    {Qt::Key_7, kVK_ANSI_Keypad7},
    {Qt::Key_8, kVK_ANSI_Keypad8},
    {Qt::Key_9, kVK_ANSI_Keypad9},
});

struct Modifier {
    Qt::KeyboardModifier modifier;
    std::uint64_t flag;
};

constexpr std::array kModifiers = std::to_array<Modifier>({
    {Qt::ShiftModifier, platform::kShiftFlag},
    {Qt::ControlModifier, platform::kControlFlag},
    {Qt::AltModifier, platform::kOptionFlag},
    {Qt::MetaModifier, platform::kCommandFlag},
});

std::optional<std::uint16_t> find(const auto &table, Qt::Key key)
{
    for (const KeyCode &each : table) {
        if (each.key == key)
            return each.code;
    }
    return {};
}

bool isModifier(int key)
{
    switch (key) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
        return true;
    default:
        return false;
    }
}

} // namespace

std::optional<std::uint16_t> keyCodeFor(Qt::Key key, bool isKeypad)
{
    if (isKeypad) {
        if (const auto code = find(kKeypad, key))
            return code;
    }
    return find(kKeys, key);
}

Qt::Key keyFor(std::uint16_t keyCode)
{
    for (const KeyCode &each : kKeys) {
        if (each.code == keyCode)
            return each.key;
    }
    for (const KeyCode &each : kKeypad) {
        if (each.code == keyCode)
            return each.key;
    }
    return Qt::Key_unknown;
}

std::uint64_t modifierFlagsFor(Qt::KeyboardModifiers modifiers)
{
    std::uint64_t flags = 0;
    for (const Modifier &each : kModifiers)
        flags |= modifiers.testFlag(each.modifier) ? each.flag : 0;
    return flags;
}

Qt::KeyboardModifiers modifiersFor(std::uint64_t modifierFlags)
{
    Qt::KeyboardModifiers modifiers;
    for (const Modifier &each : kModifiers)
        modifiers.setFlag(each.modifier, modifierFlags & each.flag);
    return modifiers;
}

std::optional<platform::Event> keyDownFor(const QKeyEvent &event)
{
    if (isModifier(event.key()))
        return {};
    constexpr std::uint16_t unassigned = 0x7f; // for keys that an ANSI keyboard lacks
    const auto code = keyCodeFor(Qt::Key(event.key()), event.modifiers().testFlag(Qt::KeypadModifier));
    if (!code && event.text().isEmpty())
        return {};
    return platform::Event{.type = platform::keyDown,
                           .modifierFlags = modifierFlagsFor(event.modifiers()),
                           .keyCode = code.value_or(unassigned),
                           .characters = event.text(),
                           .isARepeat = event.isAutoRepeat()};
}

} // namespace brimshade::desktop
