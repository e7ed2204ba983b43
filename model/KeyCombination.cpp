#include "KeyCombination.h"
#include "platform/HotkeyCenter.h"
#include "platform/KeyCodes.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <utility>

using namespace brimshade::platform;

namespace brimshade::model {

namespace {

// The words among them are translated.
constexpr std::array kKeyNames = std::to_array<std::pair<VirtualKey, const char *>>({
    {kVK_ANSI_A, "A"},
    {kVK_ANSI_B, "B"},
    {kVK_ANSI_C, "C"},
    {kVK_ANSI_D, "D"},
    {kVK_ANSI_E, "E"},
    {kVK_ANSI_F, "F"},
    {kVK_ANSI_G, "G"},
    {kVK_ANSI_H, "H"},
    {kVK_ANSI_I, "I"},
    {kVK_ANSI_J, "J"},
    {kVK_ANSI_K, "K"},
    {kVK_ANSI_L, "L"},
    {kVK_ANSI_M, "M"},
    {kVK_ANSI_N, "N"},
    {kVK_ANSI_O, "O"},
    {kVK_ANSI_P, "P"},
    {kVK_ANSI_Q, "Q"},
    {kVK_ANSI_R, "R"},
    {kVK_ANSI_S, "S"},
    {kVK_ANSI_T, "T"},
    {kVK_ANSI_U, "U"},
    {kVK_ANSI_V, "V"},
    {kVK_ANSI_W, "W"},
    {kVK_ANSI_X, "X"},
    {kVK_ANSI_Y, "Y"},
    {kVK_ANSI_Z, "Z"},
    {kVK_ANSI_0, "0"},
    {kVK_ANSI_1, "1"},
    {kVK_ANSI_2, "2"},
    {kVK_ANSI_3, "3"},
    {kVK_ANSI_4, "4"},
    {kVK_ANSI_5, "5"},
    {kVK_ANSI_6, "6"},
    {kVK_ANSI_7, "7"},
    {kVK_ANSI_8, "8"},
    {kVK_ANSI_9, "9"},
    {kVK_ANSI_Equal, "="},
    {kVK_ANSI_Minus, "-"},
    {kVK_ANSI_LeftBracket, "["},
    {kVK_ANSI_RightBracket, "]"},
    {kVK_ANSI_Quote, "'"},
    {kVK_ANSI_Semicolon, ";"},
    {kVK_ANSI_Backslash, "\\"},
    {kVK_ANSI_Comma, ","},
    {kVK_ANSI_Slash, "/"},
    {kVK_ANSI_Period, "."},
    {kVK_ANSI_Grave, "`"},
    {kVK_Space, QT_TRANSLATE_NOOP("Shortcut", "Space")},
    {kVK_Return, "↩"},
    {kVK_ANSI_KeypadEnter, "⌅"},
    {kVK_Tab, "⇥"},
    {kVK_Delete, "⌫"},
    {kVK_ForwardDelete, "⌦"},
    {kVK_Home, "↖"},
    {kVK_End, "↘"},
    {kVK_PageUp, "⇞"},
    {kVK_PageDown, "⇟"},
    {kVK_LeftArrow, "←"},
    {kVK_RightArrow, "→"},
    {kVK_UpArrow, "↑"},
    {kVK_DownArrow, "↓"},
    {kVK_F1, "F1"},
    {kVK_F2, "F2"},
    {kVK_F3, "F3"},
    {kVK_F4, "F4"},
    {kVK_F5, "F5"},
    {kVK_F6, "F6"},
    {kVK_F7, "F7"},
    {kVK_F8, "F8"},
    {kVK_F9, "F9"},
    {kVK_F10, "F10"},
    {kVK_F11, "F11"},
    {kVK_F12, "F12"},
});

constexpr std::array kModifierNames = std::to_array<std::pair<std::uint32_t, const char *>>({
    {kCarbonControl, QT_TRANSLATE_NOOP("Shortcut", "⌃")},
    {kCarbonOption, QT_TRANSLATE_NOOP("Shortcut", "⌥")},
    {kCarbonShift, QT_TRANSLATE_NOOP("Shortcut", "⇧")},
    {kCarbonCommand, QT_TRANSLATE_NOOP("Shortcut", "⌘")},
});

const char *keyName(std::uint32_t keyCode)
{
    const auto found = std::ranges::find(kKeyNames, keyCode, [](const auto &key) { return std::uint32_t(key.first); });
    return found == kKeyNames.end() ? nullptr : found->second;
}

bool isFunctionKey(std::uint32_t keyCode)
{
    const char *name = keyName(keyCode);
    return name && name[0] == 'F' && name[1] != '\0';
}

} // namespace

KeyCombination keyCombination(const Event &event)
{
    return {event.keyCode, carbonModifiers(event.modifierFlags)};
}

bool canBeGlobal(const KeyCombination &keys)
{
    constexpr std::uint32_t kHolding = kCarbonControl | kCarbonOption | kCarbonCommand;
    return isFunctionKey(keys.keyCode) || (keyName(keys.keyCode) && (keys.modifiers & kHolding));
}

QString displayTitle(const KeyCombination &keys)
{
    QString title;
    for (const auto &[modifier, name] : kModifierNames) {
        if (keys.modifiers & modifier)
            title += QCoreApplication::translate("Shortcut", name);
    }
    const char *name = keyName(keys.keyCode);
    return name ? title + QCoreApplication::translate("Shortcut", name) : title;
}

} // namespace brimshade::model
