#include "Brimshade.h"

namespace brimshade::features {

constexpr double kMove = 0.35 + 0.45 + 1.49 + 0.4; // from the request to the result
const QString kHiddenBar =
    u"the menu bar isn't showing on this display (a full-screen app, or the active menu bar is on another screen). "
    "Try again from the desktop."_s;
const QString kNoRoom = u"there's no room for it next to the notch. Hide another item first."_s;
const QString kDidNotMove = u"macOS didn't accept the move. Try again, or Cmd-drag it across the divider."_s;

class Move : public testing::Test {
protected:
    Move() { brimshade.open(); }
    Brimshade brimshade{dividedDesktop()};
};

TEST_F(Move, ShowsAnItemAndHidesItAgain)
{
    brimshade.movePointer({300, 400});
    brimshade.show(u"Vault"_s);
    EXPECT_EQ(brimshade.model().movingID(), brimshade.item(u"Vault"_s).id);
    brimshade.wait(kMove - 0.001);
    EXPECT_NE(brimshade.model().movingID(), QString());
    brimshade.wait(0.001);
    EXPECT_EQ(brimshade.model().movingID(), QString());
    EXPECT_EQ(brimshade.model().message(), QString());
    EXPECT_FALSE(brimshade.delegate().shown());
    EXPECT_EQ(brimshade.desktop().input().pointer(), QPointF(300, 400));
    brimshade.wait(1);
    EXPECT_EQ(brimshade.bar(), u"quill relay | vault"_s);
    EXPECT_EQ(brimshade.statusItem().left(), 879);
    EXPECT_EQ(brimshade.hiddenItems(), u"Quill Relay"_s);

    brimshade.hide(u"Vault"_s);
    brimshade.wait(kMove + 1);
    EXPECT_EQ(brimshade.hiddenItems(), u"Quill Relay Vault"_s);
    EXPECT_EQ(brimshade.dragCount(), 2);
}

TEST_F(Move, PostsNothingForAnItemThatIsThereAlready)
{
    brimshade.hide(u"Relay"_s);
    brimshade.wait(0.35);
    EXPECT_EQ(brimshade.model().movingID(), QString());
    EXPECT_TRUE(brimshade.desktop().inspection().takeEvents().empty());
    EXPECT_TRUE(brimshade.divider().isExpanded());
}

TEST_F(Move, RefusesOpeningsAndOtherMovesMeanwhile)
{
    brimshade.show(u"Vault"_s);
    brimshade.wait(0.5); // a click later on would disturb the drag
    brimshade.clickStatusItem();
    EXPECT_FALSE(brimshade.delegate().shown());
    brimshade.show(u"Quill"_s);
    brimshade.wait(30);
    EXPECT_EQ(brimshade.dragCount(), 1);
    EXPECT_EQ(brimshade.hiddenItems(), u"Quill Relay"_s);
    brimshade.open();
}

TEST_F(Move, LetsAScanWaitAndSeeTheBarAfterIt)
{
    brimshade.show(u"Vault"_s);
    brimshade.wait(1);
    brimshade.delegate().refresh();
    brimshade.wait(1);
    EXPECT_FALSE(brimshade.divider().isExpanded()); // the scan leaves it as the move needs it
    EXPECT_TRUE(brimshade.item(u"Vault"_s).isHidden);
    brimshade.wait(kMove - 2);
    EXPECT_FALSE(brimshade.item(u"Vault"_s).isHidden);
}

TEST(FailedMove, SaysWhy)
{
    const std::tuple<QString, std::function<void(Brimshade &)>> cases[] = {
        {kHiddenBar, [](Brimshade &b) { b.desktop().setMenuBarShowing(false); }},
        {kDidNotMove, [](Brimshade &b) { b.desktop().setMovesAccepted(false); }},
        {kNoRoom,
         [](Brimshade &b) {
             b.desktop().change(401, {agentWithButton({1250, 0, 20, 37})});
         }},
    };
    for (const auto &[sentence, spoil] : cases) {
        SCOPED_TRACE(sentence.toStdString());
        Brimshade b(dividedDesktop());
        b.open();
        spoil(b);
        b.show(u"Vault"_s);
        b.wait(kMove);
        EXPECT_EQ(b.model().movingID(), QString());
        EXPECT_EQ(b.model().message(), u"Vault: "_s + sentence);
        EXPECT_TRUE(b.hasKeys(u"settings"_s));
        b.wait(1);
        EXPECT_TRUE(b.divider().isExpanded());
    }
}

TEST_F(Move, LeavesAVisibleSettingsWindowWhereItIsAndBringsAClosedOneBack)
{
    brimshade.desktop().setMovesAccepted(false);
    brimshade.delegate().openSettings();
    brimshade.wait(1);
    brimshade.clickElsewhere(); // the keys go to another program
    brimshade.show(u"Vault"_s);
    brimshade.wait(kMove + 1);
    EXPECT_EQ(brimshade.model().message(), u"Vault: "_s + kDidNotMove);
    EXPECT_FALSE(brimshade.hasKeys(u"settings"_s));

    brimshade.desktop().windows().named(u"settings"_s)->close();
    brimshade.show(u"Quill"_s);
    EXPECT_EQ(brimshade.model().message(), QString());
    brimshade.wait(kMove);
    EXPECT_TRUE(brimshade.hasKeys(u"settings"_s));
    EXPECT_EQ(brimshade.windowCount(u"settings"_s), 1);
}

TEST(FailedMove, EndsWhateverHappensInTheMiddleOfIt)
{
    const std::tuple<const char *, std::function<void(Brimshade &)>, bool, QString> faults[] = {
        {"the application quits", [](Brimshade &b) { b.desktop().quit(812); }, true, kDidNotMove},
        {"the application hangs",
         [](Brimshade &b) {
             auto hung = application(812, u"Vault"_s);
             hung.hangs = true;
             b.desktop().change(812, {hung});
         },
         true, kDidNotMove},
        {"the permission is withdrawn", [](Brimshade &b) { b.desktop().setTrusted(false); }, true, kDidNotMove},
        {"the screen is unplugged",
         [](Brimshade &b) {
             b.desktop().setScreens({plainScreen({0, 0, 1920, 1080}, u"Desk"_s)});
         },
         false,
         {}},
    };
    for (const auto &[name, strike, leavesNotch, sentence] : faults) {
        for (const double moment : {0.2, 0.5, 1.0, 2.0, 2.5}) {
            SCOPED_TRACE(u"%1 at %2"_s.arg(QLatin1StringView(name)).arg(moment).toStdString());
            Brimshade b(dividedDesktop());
            b.open();
            b.show(u"Vault"_s);
            b.wait(moment);
            strike(b);
            b.wait(60);
            EXPECT_EQ(b.model().movingID(), QString());
            if (!sentence.isEmpty() && moment > 0.8) {
                EXPECT_EQ(b.model().message(), u"Vault: "_s + sentence);
            }
            const QRectF item = b.statusItem(); // measured anew
            EXPECT_EQ(leavesNotch ? item.left() : item.width(), leavesNotch ? 879 : 28);
            b.clickStatusItem();
            EXPECT_TRUE(b.delegate().shown());
        }
    }
}

} // namespace brimshade::features
