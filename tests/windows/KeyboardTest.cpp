#include "Context.h"

#include <gtest/gtest.h>

namespace brimshade::windows {
namespace {

using namespace Qt::StringLiterals;
using model::Shortcut;

class Keyboard : public testing::Test {
protected:
    Context context;

    QStringList walk(int key, int times)
    {
        QStringList names;
        for (int i = 0; i < times; ++i) {
            context.key(key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
            names << context.focused();
        }
        return names;
    }
    // Whether the item with the keyboard lies wholly in the window and shows that it has the keyboard.
    bool focusIsShown()
    {
        const QQuickItem *item = context.scene().window()->activeFocusItem();
        return context.scene().frameOf(context.scene().root()).contains(context.scene().frameOf(item))
            && item->property("visualFocus").toBool();
    }
};

TEST_F(Keyboard, WalksThroughTheSettingsAndScrollsAlong)
{
    context.setExtras(someExtras());
    context.model.setMessage(u"Relay: no."_s);
    context.showSettings();
    const QStringList order{u"dismissButton"_s,       u"dividerSwitch"_s, u"itemSwitch"_s,     u"itemSwitch"_s,
                            u"itemSwitch"_s,          u"hoverSwitch"_s,   u"shortcutPicker"_s, u"showVisibleSwitch"_s,
                            u"launchAtLoginSwitch"_s, u"runSetupButton"_s};
    for (const QString &name : order) {
        EXPECT_EQ(walk(Qt::Key_Tab, 1), QStringList{name});
        EXPECT_TRUE(focusIsShown()) << qPrintable(name);
    }
    EXPECT_GT(context.property(u"settingsScroll"_s, "contentY").toDouble(), 0);
    context.key(Qt::Key_Space);
    EXPECT_EQ(context.setups, 1);
    QStringList back(order.rbegin() + 1, order.rend());
    EXPECT_EQ(walk(Qt::Key_Backtab, int(back.size())), back);
    EXPECT_TRUE(focusIsShown());
    context.key(Qt::Key_Space);
    EXPECT_EQ(context.model.message(), QString());
}

TEST_F(Keyboard, FlipsSwitches)
{
    context.setExtras(someExtras());
    context.showSettings();
    walk(Qt::Key_Tab, 2);
    context.key(Qt::Key_Space);
    EXPECT_EQ(context.moves, QStringList{u"ledger show"_s});
    EXPECT_FALSE(context.property(u"itemSwitch"_s, "checked").toBool()) << "shows the item's state, not the wish";
    walk(Qt::Key_Tab, 3);
    ASSERT_EQ(context.focused(), u"hoverSwitch"_s);
    context.key(Qt::Key_Space);
    EXPECT_TRUE(context.model.hoverToOpen());
    EXPECT_TRUE(context.property(u"hoverSwitch"_s, "checked").toBool());
    walk(Qt::Key_Tab, 3);
    context.key(Qt::Key_Space);
    EXPECT_FALSE(context.model.launchAtLogin()) << "the system refuses";
    EXPECT_FALSE(context.property(u"launchAtLoginSwitch"_s, "checked").toBool());
    EXPECT_EQ(context.model.message(), u"Couldn't change Launch at Login: not allowed"_s);
}

TEST_F(Keyboard, StaysWithTheItemThatItMoves)
{
    menubar::ExtraList extras = someExtras();
    context.setExtras(extras);
    context.showSettings();
    walk(Qt::Key_Tab, 2);
    const QQuickItem *ledger = context.scene().window()->activeFocusItem();
    context.key(Qt::Key_Space);
    context.model.setMovingID(u"ledger"_s);
    context.scene().advance(500);
    EXPECT_EQ(context.scene().window()->activeFocusItem(), ledger);
    context.key(Qt::Key_Space);
    EXPECT_EQ(context.moves, QStringList{u"ledger show"_s}) << "once, while it moves";
    extras[0].isHidden = false;
    std::swap(extras[0], extras[1]);
    context.setExtras(extras);
    context.model.setMovingID({});
    context.scene().advance(500);
    EXPECT_EQ(context.scene().window()->activeFocusItem(), ledger);
    EXPECT_TRUE(focusIsShown());
    context.key(Qt::Key_Space);
    EXPECT_EQ(context.moves.last(), u"ledger hide"_s);
}

TEST_F(Keyboard, PicksAShortcut)
{
    struct Case {
        QList<int> keys;
        Shortcut picked;
        bool open;
    };
    const Case cases[]{
        {{Qt::Key_Space, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}, Shortcut::controlOptionSpace, false},
        {{Qt::Key_Down, Qt::Key_Up, Qt::Key_Escape}, Shortcut::controlOptionSpace, false},
        {{Qt::Key_Down, Qt::Key_End, Qt::Key_Down, Qt::Key_Space}, Shortcut::controlOptionCommandM, false},
        {{Qt::Key_Up, Qt::Key_Home, Qt::Key_Up, Qt::Key_Enter}, Shortcut::none, false},
        {{Qt::Key_Space, Qt::Key_Down, Qt::Key_Tab}, Shortcut::none, false},
        {{Qt::Key_Space, Qt::Key_Down, Qt::Key_A}, Shortcut::none, true},
    };
    context.showSettings();
    while (context.focused() != u"shortcutPicker"_s)
        context.key(Qt::Key_Tab);
    for (const Case &each : cases) {
        for (const int key : each.keys)
            context.key(key);
        const auto index = &each - cases;
        EXPECT_EQ(context.model.shortcut(), each.picked) << index;
        EXPECT_EQ(context.item(u"shortcutPickerList"_s) != nullptr, each.open) << index;
        EXPECT_EQ(context.focused(), each.open ? u"shortcutPickerList"_s : u"shortcutPicker"_s) << index;
    }
}

TEST_F(Keyboard, GoesThroughTheSetupByReturnAlone)
{
    context.setExtras(someExtras());
    context.showSetup();
    for (int step = 1; step < 5; ++step) {
        context.key(Qt::Key_Return);
        EXPECT_EQ(context.flow.step(), step);
    }
    EXPECT_FALSE(context.finished);
    context.key(Qt::Key_Enter);
    EXPECT_TRUE(context.finished);
}

TEST_F(Keyboard, ReturnSkipsNothingByAccident)
{
    context.model.setTrusted(false);
    context.showSetup();
    context.key(Qt::Key_Return);
    context.key(Qt::Key_Return);
    EXPECT_EQ(context.flow.step(), 1) << "there is no default action while access is missing";
    EXPECT_EQ(walk(Qt::Key_Tab, 3), (QStringList{u"openAccessibilityButton"_s, u"backButton"_s, u"skipButton"_s}));
    context.key(Qt::Key_Space);
    EXPECT_EQ(context.flow.step(), 2);
}

TEST_F(Keyboard, ChoosesItemsAndOptionsInTheSetup)
{
    context.setExtras(someExtras());
    context.showSetup();
    context.goTo(2);
    EXPECT_EQ(walk(Qt::Key_Tab, 6),
              (QStringList{u"choiceTile"_s, u"choiceTile"_s, u"choiceTile"_s, u"choiceTile"_s, u"backButton"_s,
                           u"primaryButton"_s}));
    walk(Qt::Key_Backtab, 4);
    context.key(Qt::Key_Space);
    EXPECT_TRUE(context.flow.choices().value(u"relay"_s));
    context.key(Qt::Key_Return);
    ASSERT_EQ(context.flow.step(), 3) << "Return presses the primary button wherever the keyboard is";
    EXPECT_EQ(walk(Qt::Key_Tab, 2), (QStringList{u"setupHoverSwitch"_s, u"setupShortcutPicker"_s}));
    context.key(Qt::Key_Down);
    context.key(Qt::Key_Down);
    context.key(Qt::Key_Return);
    EXPECT_EQ(context.model.shortcut(), Shortcut::optionCommandN);
    EXPECT_EQ(context.flow.step(), 3) << "Return went to the open list";
    EXPECT_EQ(context.focused(), u"setupShortcutPicker"_s);
    context.key(Qt::Key_Return);
    EXPECT_EQ(context.flow.step(), 4) << "and from the closed picker to the primary button";
}

} // namespace
} // namespace brimshade::windows
