#include "Context.h"

namespace brimshade::windows {

using model::Shortcut;

class Keyboard : public testing::Test, protected Context {
protected:
    QStringList walk(int code, int times)
    {
        QStringList names;
        for (int i = 0; i < times; ++i) {
            key(code, code == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
            names << focused();
        }
        return names;
    }
    // Whether the item with the keyboard lies wholly in the window and shows that it has the keyboard.
    bool focusIsShown()
    {
        const QQuickItem *item = scene().window()->activeFocusItem();
        return scene().frameOf(scene().root()).contains(scene().frameOf(item))
            && item->property("visualFocus").toBool();
    }
};

TEST_F(Keyboard, WalksThroughTheSettingsAndScrollsAlong)
{
    setExtras(someExtras());
    model.setMessage(u"Relay: no."_s);
    showSettings();
    const QStringList order{u"dismissButton"_s,       u"dividerSwitch"_s, u"itemSwitch"_s,     u"itemSwitch"_s,
                            u"itemSwitch"_s,          u"hoverSwitch"_s,   u"shortcutPicker"_s, u"showVisibleSwitch"_s,
                            u"launchAtLoginSwitch"_s, u"runSetupButton"_s};
    for (const QString &name : order) {
        EXPECT_EQ(walk(Qt::Key_Tab, 1), QStringList{name});
        EXPECT_TRUE(focusIsShown()) << qPrintable(name);
    }
    EXPECT_GT(property(u"settingsScroll"_s, "contentY").toDouble(), 0);
    key(Qt::Key_Space);
    EXPECT_EQ(setups, 1);
    QStringList back(order.rbegin() + 1, order.rend());
    EXPECT_EQ(walk(Qt::Key_Backtab, int(back.size())), back);
    EXPECT_TRUE(focusIsShown());
    key(Qt::Key_Space);
    EXPECT_EQ(model.message(), QString());
}

TEST_F(Keyboard, FlipsSwitches)
{
    setExtras(someExtras());
    showSettings();
    walk(Qt::Key_Tab, 2);
    key(Qt::Key_Space);
    EXPECT_EQ(moves, QStringList{u"ledger show"_s});
    EXPECT_FALSE(property(u"itemSwitch"_s, "checked").toBool()) << "it shows the item's state, not what was asked for";
    walk(Qt::Key_Tab, 3);
    ASSERT_EQ(focused(), u"hoverSwitch"_s);
    key(Qt::Key_Space);
    EXPECT_TRUE(model.hoverToOpen());
    EXPECT_TRUE(property(u"hoverSwitch"_s, "checked").toBool());
    walk(Qt::Key_Tab, 3);
    key(Qt::Key_Space);
    EXPECT_FALSE(model.launchAtLogin()) << "the system refuses";
    EXPECT_FALSE(property(u"launchAtLoginSwitch"_s, "checked").toBool());
    EXPECT_EQ(model.message(), u"Couldn't change Launch at Login: not allowed"_s);
}

TEST_F(Keyboard, StaysWithTheItemThatItMoves)
{
    menubar::ExtraList extras = someExtras();
    setExtras(extras);
    showSettings();
    walk(Qt::Key_Tab, 2);
    const QQuickItem *ledger = scene().window()->activeFocusItem();
    key(Qt::Key_Space);
    model.setMovingID(u"ledger"_s);
    scene().advance(500);
    EXPECT_EQ(scene().window()->activeFocusItem(), ledger);
    key(Qt::Key_Space);
    EXPECT_EQ(moves, QStringList{u"ledger show"_s}) << "once, while it moves";
    extras[0].isHidden = false;
    std::swap(extras[0], extras[1]);
    setExtras(extras);
    model.setMovingID({});
    scene().advance(500);
    EXPECT_EQ(scene().window()->activeFocusItem(), ledger);
    EXPECT_TRUE(focusIsShown());
    key(Qt::Key_Space);
    EXPECT_EQ(moves.last(), u"ledger hide"_s);
}

TEST_F(Keyboard, PicksAShortcut)
{
    const std::tuple<QList<int>, Shortcut, bool> cases[]{
        {{Qt::Key_Space, Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}, Shortcut::controlOptionSpace, false},
        {{Qt::Key_Down, Qt::Key_Up, Qt::Key_Escape}, Shortcut::controlOptionSpace, false},
        {{Qt::Key_Down, Qt::Key_End, Qt::Key_Down, Qt::Key_Space}, Shortcut::controlOptionCommandM, false},
        {{Qt::Key_Up, Qt::Key_Home, Qt::Key_Up, Qt::Key_Enter}, Shortcut::none, false},
        {{Qt::Key_Space, Qt::Key_Down, Qt::Key_Tab}, Shortcut::none, false},
        {{Qt::Key_Space, Qt::Key_Down, Qt::Key_A}, Shortcut::none, true},
    };
    showSettings();
    while (focused() != u"shortcutPicker"_s)
        key(Qt::Key_Tab);
    for (const auto &[keys, picked, open] : cases) {
        for (const int code : keys)
            key(code);
        EXPECT_EQ(model.shortcut(), picked) << keys.size();
        EXPECT_EQ(item(u"shortcutPickerList"_s) != nullptr, open) << keys.size();
        EXPECT_EQ(focused(), open ? u"shortcutPickerList"_s : u"shortcutPicker"_s) << keys.size();
    }
}

TEST_F(Keyboard, ReturnSkipsNothingByAccident)
{
    model.setTrusted(false);
    showSetup();
    key(Qt::Key_Return);
    key(Qt::Key_Return);
    EXPECT_EQ(flow.step(), 1) << "there is no default action while access is missing";
    EXPECT_EQ(walk(Qt::Key_Tab, 3), (QStringList{u"openAccessibilityButton"_s, u"backButton"_s, u"skipButton"_s}));
    key(Qt::Key_Space);
    EXPECT_EQ(flow.step(), 2);
}

TEST_F(Keyboard, ChoosesItemsAndOptionsInTheSetup)
{
    setExtras(someExtras());
    showSetup();
    goTo(2);
    EXPECT_EQ(walk(Qt::Key_Tab, 6),
              (QStringList{u"choiceTile"_s, u"choiceTile"_s, u"choiceTile"_s, u"choiceTile"_s, u"backButton"_s,
                           u"primaryButton"_s}));
    walk(Qt::Key_Backtab, 4);
    key(Qt::Key_Space);
    EXPECT_TRUE(flow.choices().value(u"relay"_s));
    key(Qt::Key_Return);
    ASSERT_EQ(flow.step(), 3) << "Return presses the primary button wherever the keyboard is";
    EXPECT_EQ(walk(Qt::Key_Tab, 2), (QStringList{u"setupHoverSwitch"_s, u"setupShortcutPicker"_s}));
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_EQ(model.shortcut(), Shortcut::optionCommandN);
    EXPECT_EQ(flow.step(), 3) << "Return went to the open list";
    EXPECT_EQ(focused(), u"setupShortcutPicker"_s);
    key(Qt::Key_Return);
    EXPECT_EQ(flow.step(), 4) << "and from the closed picker to the primary button";
}

} // namespace brimshade::windows
