#include "KeyMap.h"

#include <array>

namespace brimshade::desktop {

namespace {

struct KeyCode {
    Qt::Key key;
    std::uint16_t code;
};

// HIToolbox/Events.h. Of several keys with one code, the first is what keyFor() answers.
constexpr std::array kKeys = std::to_array<KeyCode>({
    {Qt::Key_A, 0},
    {Qt::Key_S, 1},
    {Qt::Key_D, 2},
    {Qt::Key_F, 3},
    {Qt::Key_H, 4},
    {Qt::Key_G, 5},
    {Qt::Key_Z, 6},
    {Qt::Key_X, 7},
    {Qt::Key_C, 8},
    {Qt::Key_V, 9},
    {Qt::Key_B, 11},
    {Qt::Key_Q, 12},
    {Qt::Key_W, 13},
    {Qt::Key_E, 14},
    {Qt::Key_R, 15},
    {Qt::Key_Y, 16},
    {Qt::Key_T, 17},
    {Qt::Key_1, 18},
    {Qt::Key_2, 19},
    {Qt::Key_3, 20},
    {Qt::Key_4, 21},
    {Qt::Key_6, 22},
    {Qt::Key_5, 23},
    {Qt::Key_Equal, 24},
    {Qt::Key_9, 25},
    {Qt::Key_7, 26},
    {Qt::Key_Minus, 27},
    {Qt::Key_8, 28},
    {Qt::Key_0, 29},
    {Qt::Key_BracketRight, 30},
    {Qt::Key_O, 31},
    {Qt::Key_U, 32},
    {Qt::Key_BracketLeft, 33},
    {Qt::Key_I, 34},
    {Qt::Key_P, 35},
    {Qt::Key_Return, 36},
    {Qt::Key_L, 37},
    {Qt::Key_J, 38},
    {Qt::Key_Apostrophe, 39},
    {Qt::Key_K, 40},
    {Qt::Key_Semicolon, 41},
    {Qt::Key_Backslash, 42},
    {Qt::Key_Comma, 43},
    {Qt::Key_Slash, 44},
    {Qt::Key_N, 45},
    {Qt::Key_M, 46},
    {Qt::Key_Period, 47},
    {Qt::Key_Tab, 48},
    {Qt::Key_Space, 49},
    {Qt::Key_QuoteLeft, 50},
    {Qt::Key_Backspace, 51},
    {Qt::Key_Escape, 53},
    {Qt::Key_Enter, 76},
    {Qt::Key_F5, 96},
    {Qt::Key_F6, 97},
    {Qt::Key_F7, 98},
    {Qt::Key_F3, 99},
    {Qt::Key_F8, 100},
    {Qt::Key_F9, 101},
    {Qt::Key_F11, 103},
    {Qt::Key_F10, 109},
    {Qt::Key_F12, 111},
    {Qt::Key_Home, 115},
    {Qt::Key_PageUp, 116},
    {Qt::Key_Delete, 117},
    {Qt::Key_F4, 118},
    {Qt::Key_End, 119},
    {Qt::Key_F2, 120},
    {Qt::Key_PageDown, 121},
    {Qt::Key_F1, 122},
    {Qt::Key_Left, 123},
    {Qt::Key_Right, 124},
    {Qt::Key_Down, 125},
    {Qt::Key_Up, 126},
    // What Shift makes of them.
    {Qt::Key_Exclam, 18},
    {Qt::Key_At, 19},
    {Qt::Key_NumberSign, 20},
    {Qt::Key_Dollar, 21},
    {Qt::Key_AsciiCircum, 22},
    {Qt::Key_Percent, 23},
    {Qt::Key_Plus, 24},
    {Qt::Key_ParenLeft, 25},
    {Qt::Key_Ampersand, 26},
    {Qt::Key_Underscore, 27},
    {Qt::Key_Asterisk, 28},
    {Qt::Key_ParenRight, 29},
    {Qt::Key_BraceRight, 30},
    {Qt::Key_BraceLeft, 33},
    {Qt::Key_QuoteDbl, 39},
    {Qt::Key_Colon, 41},
    {Qt::Key_Bar, 42},
    {Qt::Key_Less, 43},
    {Qt::Key_Question, 44},
    {Qt::Key_Greater, 47},
    {Qt::Key_Backtab, 48},
    {Qt::Key_AsciiTilde, 50},
});

constexpr std::array kKeypad = std::to_array<KeyCode>({
    {Qt::Key_Period, 65},
    {Qt::Key_Comma, 65},
    {Qt::Key_Asterisk, 67},
    {Qt::Key_Plus, 69},
    {Qt::Key_Slash, 75},
    {Qt::Key_Minus, 78},
    {Qt::Key_Equal, 81},
    {Qt::Key_0, 82},
    {Qt::Key_1, 83},
    {Qt::Key_2, 84},
    {Qt::Key_3, 85},
    {Qt::Key_4, 86},
    {Qt::Key_5, 87},
    {Qt::Key_6, 88},
    {Qt::Key_7, 89},
    {Qt::Key_8, 91},
    {Qt::Key_9, 92},
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
    constexpr std::uint16_t unassigned = 0x7f; // typed by a key that an ANSI keyboard lacks
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
