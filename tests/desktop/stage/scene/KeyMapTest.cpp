#include "desktop/views/KeyMap.h"
#include "support/Test.h"

namespace brimshade::desktop {

std::optional<platform::Event> typed(int key, Qt::KeyboardModifiers modifiers, const QString &text)
{
    return keyDownFor(QKeyEvent(QEvent::KeyPress, key, modifiers, text));
}

TEST(KeyMap, GivesEveryKeyItsVirtualCode)
{
    const std::tuple<int, Qt::KeyboardModifiers, QString, std::uint16_t, std::uint64_t> cases[] = {
        {Qt::Key_Escape, {}, u"\x1b"_s, 53, 0},
        {Qt::Key_Return, {}, u"\r"_s, 36, 0},
        {Qt::Key_Enter, Qt::KeypadModifier, u"\r"_s, 76, 0},
        {Qt::Key_Backspace, {}, u"\b"_s, 51, 0},
        {Qt::Key_Delete, {}, u"\x7f"_s, 117, 0},
        {Qt::Key_Left, {}, {}, 123, 0},
        {Qt::Key_Right, {}, {}, 124, 0},
        {Qt::Key_Down, {}, {}, 125, 0},
        {Qt::Key_Up, {}, {}, 126, 0},
        {Qt::Key_Tab, {}, u"\t"_s, 48, 0},
        {Qt::Key_Backtab, Qt::ShiftModifier, {}, 48, platform::kShiftFlag},
        {Qt::Key_A, Qt::ShiftModifier, u"A"_s, 0, platform::kShiftFlag},
        {Qt::Key_N, Qt::AltModifier | Qt::MetaModifier, u"n"_s, 45, platform::kOptionFlag | platform::kCommandFlag},
        {Qt::Key_Space, Qt::ControlModifier | Qt::AltModifier, u" "_s, 49,
         platform::kControlFlag | platform::kOptionFlag},
        {Qt::Key_M, Qt::ControlModifier, u"\r"_s, 46, platform::kControlFlag},
        {Qt::Key_5, {}, u"5"_s, 23, 0},
        {Qt::Key_5, Qt::KeypadModifier, u"5"_s, 87, 0},
        {Qt::Key_Exclam, Qt::ShiftModifier, u"!"_s, 18, platform::kShiftFlag},
        {Qt::Key_Odiaeresis, {}, u"ö"_s, 0x7f, 0},
    };
    for (const auto &[key, modifiers, text, code, flags] : cases) {
        SCOPED_TRACE(key);
        const auto event = typed(key, modifiers, text);
        ASSERT_TRUE(event);
        EXPECT_EQ(event->keyCode, code);
        EXPECT_EQ(event->modifierFlags, flags);
        EXPECT_EQ(event->characters, text);
    }
}

TEST(KeyMap, HasNoKeyDownForAModifierOrAKeyThatTypesNothing)
{
    for (const int key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_Meta, Qt::Key_Super_L, Qt::Key_CapsLock,
                          Qt::Key_AltGr, Qt::Key_VolumeUp, Qt::Key_Print})
        EXPECT_FALSE(typed(key, {}, {})) << key;
}

} // namespace brimshade::desktop
