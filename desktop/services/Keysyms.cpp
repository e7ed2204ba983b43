#include "Keysyms.h"

#include "platform/KeyCodes.h"

#include <array>
#include <utility>

using namespace brimshade::platform;

namespace brimshade::desktop {

namespace {

// Latin-1 characters are their own keysyms, the others are those of X11/keysymdef.h.
constexpr std::array kKeysyms = std::to_array<std::pair<VirtualKey, std::uint32_t>>({
    {kVK_ANSI_A, 'a'},
    {kVK_ANSI_S, 's'},
    {kVK_ANSI_D, 'd'},
    {kVK_ANSI_F, 'f'},
    {kVK_ANSI_H, 'h'},
    {kVK_ANSI_G, 'g'},
    {kVK_ANSI_Z, 'z'},
    {kVK_ANSI_X, 'x'},
    {kVK_ANSI_C, 'c'},
    {kVK_ANSI_V, 'v'},
    {kVK_ANSI_B, 'b'},
    {kVK_ANSI_Q, 'q'},
    {kVK_ANSI_W, 'w'},
    {kVK_ANSI_E, 'e'},
    {kVK_ANSI_R, 'r'},
    {kVK_ANSI_Y, 'y'},
    {kVK_ANSI_T, 't'},
    {kVK_ANSI_1, '1'},
    {kVK_ANSI_2, '2'},
    {kVK_ANSI_3, '3'},
    {kVK_ANSI_4, '4'},
    {kVK_ANSI_6, '6'},
    {kVK_ANSI_5, '5'},
    {kVK_ANSI_Equal, '='},
    {kVK_ANSI_9, '9'},
    {kVK_ANSI_7, '7'},
    {kVK_ANSI_Minus, '-'},
    {kVK_ANSI_8, '8'},
    {kVK_ANSI_0, '0'},
    {kVK_ANSI_RightBracket, ']'},
    {kVK_ANSI_O, 'o'},
    {kVK_ANSI_U, 'u'},
    {kVK_ANSI_LeftBracket, '['},
    {kVK_ANSI_I, 'i'},
    {kVK_ANSI_P, 'p'},
    {kVK_ANSI_L, 'l'},
    {kVK_ANSI_J, 'j'},
    {kVK_ANSI_Quote, '\''},
    {kVK_ANSI_K, 'k'},
    {kVK_ANSI_Semicolon, ';'},
    {kVK_ANSI_Backslash, '\\'},
    {kVK_ANSI_Comma, ','},
    {kVK_ANSI_Slash, '/'},
    {kVK_ANSI_N, 'n'},
    {kVK_ANSI_M, 'm'},
    {kVK_ANSI_Period, '.'},
    {kVK_ANSI_Grave, '`'},
    {kVK_ANSI_KeypadDecimal, 0xffae},
    {kVK_ANSI_KeypadMultiply, 0xffaa},
    {kVK_ANSI_KeypadPlus, 0xffab},
    {kVK_ANSI_KeypadDivide, 0xffaf},
    {kVK_ANSI_KeypadEnter, 0xff8d},
    {kVK_ANSI_KeypadMinus, 0xffad},
    {kVK_ANSI_KeypadEquals, 0xffbd},
    {kVK_ANSI_Keypad0, 0xffb0},
    {kVK_ANSI_Keypad1, 0xffb1},
    {kVK_ANSI_Keypad2, 0xffb2},
    {kVK_ANSI_Keypad3, 0xffb3},
    {kVK_ANSI_Keypad4, 0xffb4},
    {kVK_ANSI_Keypad5, 0xffb5},
    {kVK_ANSI_Keypad6, 0xffb6},
    {kVK_ANSI_Keypad7, 0xffb7},
    {kVK_ANSI_Keypad8, 0xffb8},
    {kVK_ANSI_Keypad9, 0xffb9},
    {kVK_Return, 0xff0d},
    {kVK_Tab, 0xff09},
    {kVK_Space, ' '},
    {kVK_Delete, 0xff08},
    {kVK_Escape, 0xff1b},
    {kVK_F5, 0xffc2},
    {kVK_F6, 0xffc3},
    {kVK_F7, 0xffc4},
    {kVK_F3, 0xffc0},
    {kVK_F8, 0xffc5},
    {kVK_F9, 0xffc6},
    {kVK_F11, 0xffc8},
    {kVK_F10, 0xffc7},
    {kVK_ContextualMenu, 0xff67},
    {kVK_F12, 0xffc9},
    {kVK_Home, 0xff50},
    {kVK_PageUp, 0xff55},
    {kVK_ForwardDelete, 0xffff},
    {kVK_F4, 0xffc1},
    {kVK_End, 0xff57},
    {kVK_F2, 0xffbf},
    {kVK_PageDown, 0xff56},
    {kVK_F1, 0xffbe},
    {kVK_LeftArrow, 0xff51},
    {kVK_RightArrow, 0xff53},
    {kVK_DownArrow, 0xff54},
    {kVK_UpArrow, 0xff52},
});

} // namespace

std::uint32_t keysymOf(std::uint32_t keyCode)
{
    for (const auto &[key, keysym] : kKeysyms) {
        if (key == keyCode)
            return keysym;
    }
    return 0;
}

} // namespace brimshade::desktop
