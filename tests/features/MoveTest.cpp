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

// The bar recognizes a drag only if it looks like a hand's.
TEST_F(Move, DragsAsAHandWould)
{
    const double start = brimshade.desktop().platform().dispatch.now() + 0.35 + 0.45;
    brimshade.show(u"Vault"_s);
    brimshade.wait(kMove);
    const auto events = brimshade.desktop().inspection().takeEvents();
    ASSERT_EQ(events.size(), 43);
    const QPointF from(1259, 18.5); // the item's centre, at 1244 to 1274 once the divider has shrunk to 1304
    const QPointF to(1332 + 6, 18.5); // inside the control centre, which begins at the divider's right edge
    const auto expect = [&](std::size_t i, platform::CGEventType type, QPointF at, int clickState, double time) {
        const auto &[event, when] = events[i];
        EXPECT_EQ(event.type, type) << i;
        EXPECT_NEAR(event.location.x(), at.x(), 1e-9) << i;
        EXPECT_NEAR(event.location.y(), at.y(), 1e-9) << i;
        EXPECT_EQ(event.clickState, clickState) << i;
        EXPECT_EQ(event.flags, 0x100000) << i;
        EXPECT_NEAR(when - start, time, 1e-6) << i;
    };
    expect(0, platform::kCGEventMouseMoved, from, 0, 0);
    expect(1, platform::kCGEventLeftMouseDown, from, 1, 0.04);
    for (int i = 1; i <= 40; ++i)
        expect(1 + i, platform::kCGEventLeftMouseDragged, from + (to - from) * i / 40, 1, 0.39 + (i - 1) * 0.02);
    expect(42, platform::kCGEventLeftMouseUp, to, 1, 0.39 + 40 * 0.02 + 0.3);
}

TEST_F(Move, PostsNothingForAnItemThatIsThereAlready)
{
    brimshade.hide(u"Relay"_s);
    brimshade.wait(0.35);
    EXPECT_EQ(brimshade.model().movingID(), QString());
    EXPECT_TRUE(brimshade.desktop().inspection().takeEvents().empty());
    EXPECT_TRUE(brimshade.divider().isExpanded());
}

TEST(FirstMove, TurnsTheDividerOn)
{
    Brimshade brimshade;
    brimshade.open();
    brimshade.hide(u"Relay"_s);
    EXPECT_TRUE(brimshade.model().dividerEnabled());
    brimshade.wait(10);
    EXPECT_TRUE(brimshade.divider().isExpanded());
    EXPECT_EQ(brimshade.hiddenItems(), u"Quill Vault Relay"_s);
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
    brimshade.model().onRefresh();
    brimshade.wait(1);
    EXPECT_FALSE(brimshade.divider().isExpanded()); // the scan leaves it in the state that the move needs
    EXPECT_TRUE(brimshade.item(u"Vault"_s).isHidden);
    brimshade.wait(kMove - 2);
    EXPECT_FALSE(brimshade.item(u"Vault"_s).isHidden);
}

// At any moment: before the request, while the panel closes, in the middle of the drag and after it.
TEST(MoveAmongOthers, IsNotDisturbedByApplicationsThatComeAndGo)
{
    for (int tenths = -13; tenths <= 30; ++tenths) {
        SCOPED_TRACE(tenths);
        auto desktop = sharedDesktop();
        desktop.applications.push_back(application(820, u"Early"_s));
        Brimshade b(desktop);
        b.open();
        const auto disturb = [&] {
            b.desktop().launch({application(900, u"Late"_s)});
            b.desktop().quit(820);
        };
        if (tenths < 0) {
            disturb();
            b.wait(-0.1 * tenths);
        }
        b.hide(u"Vault"_s);
        if (tenths >= 0) {
            b.wait(0.1 * tenths);
            disturb();
        }
        b.wait(10);
        EXPECT_EQ(b.model().message(), QString());
        EXPECT_EQ(b.bar(), u"late quill vault | relay"_s);
        EXPECT_EQ(b.statusItem().left(), 879);
    }
}

TEST_F(Move, KeepsTheDividerCollapsedUntilItIsOver)
{
    brimshade.desktop().launch({application(900, u"Late"_s)}); // would be measured in the middle of the drag
    brimshade.wait(0.2);
    brimshade.show(u"Vault"_s);
    brimshade.wait(0.35 + 0.1);
    for (double passed = 0.45; passed < kMove; passed += 0.01) {
        ASSERT_EQ(brimshade.statusItem().width(), 28) << passed;
        if (std::abs(passed - 2) < 0.001)
            brimshade.desktop().setScreens({notchedScreen()}); // and so would this
        brimshade.wait(0.01);
    }
    brimshade.wait(1);
    EXPECT_EQ(brimshade.hiddenItems(), u"Late Quill Relay"_s);
    EXPECT_EQ(brimshade.statusItem().left(), 879);
}

// The place that the divider had before the move would be too far right.
TEST(WideMove, LeavesTheIconInTheBar)
{
    auto desktop = dividedDesktop();
    desktop.applications.at(2) = application(812, u"Vault"_s, 120);
    Brimshade b(desktop);
    b.open();
    b.show(u"Vault"_s);
    b.wait(kMove);
    ASSERT_EQ(b.model().movingID(), QString());
    for (int hundredths = 0; hundredths < 200; ++hundredths) {
        if (hundredths == 10)
            b.model().onRefresh(); // like an opening
        ASSERT_TRUE(b.isDrawn(u"BrimshadeButton"_s)) << hundredths;
        b.wait(0.01);
    }
    EXPECT_EQ(b.statusItem(), QRectF(879, 0, 1332 - 120 - 879, 37));
}

TEST(FailedMove, SaysWhyAndLetsTheDividerGrowAgain)
{
    const std::tuple<QString, std::function<void(Brimshade &)>, bool, std::size_t> cases[] = {
        {kHiddenBar, [](Brimshade &b) { b.desktop().setMenuBarShowing(false); }, false, 0},
        {kDidNotMove, [](Brimshade &b) { b.desktop().setMovesAccepted(false); }, false, 43},
        {kDidNotMove,
         [](Brimshade &b) {
             b.show(u"Vault"_s), b.wait(kMove + 1), b.dragCount();
             b.desktop().setMovesAccepted(false);
         },
         true, 43},
        {kNoRoom,
         [](Brimshade &b) {
             b.desktop().change(401, {agentWithButton({1250, 0, 20, 37})});
         },
         false, 0},
    };
    for (const auto &[sentence, spoil, hide, events] : cases) {
        SCOPED_TRACE(sentence.toStdString());
        Brimshade b(dividedDesktop());
        b.open();
        spoil(b);
        b.movePointer({300, 400});
        b.move(u"Vault"_s, hide);
        b.wait(kMove);
        EXPECT_EQ(b.model().movingID(), QString());
        EXPECT_EQ(b.model().message(), u"Vault: "_s + sentence);
        EXPECT_EQ(b.desktop().inspection().takeEvents().size(), events);
        EXPECT_EQ(b.desktop().input().pointer(), QPointF(300, 400));
        EXPECT_TRUE(b.hasKeys(u"settings"_s));
        b.wait(1);
        EXPECT_TRUE(b.divider().isExpanded());
    }
}

// Nobody knows where to drag it from, or whether it moved.
TEST(FailedMove, DragsNothingThatCannotBeRead)
{
    const auto unreadable = [] {
        auto vault = application(812, u"Vault"_s);
        vault.extras->at(0).frameKind = desktop::ExtraDescription::Frame::unreadable;
        return vault;
    };
    struct Case {
        const char *name;
        std::function<void(Brimshade &)> strike;
        double timeout; // what a scan or reading a frame then costs
        std::vector<double> moments; // before the first scan, before the drag, in the middle of it and after it
    };
    const Case cases[] = {
        {"the application quits", [](Brimshade &b) { b.desktop().quit(812); }, 0, {0.1, 0.5, 1.5, 2.5}},
        {"the permission is withdrawn", [](Brimshade &b) { b.desktop().setTrusted(false); }, 0, {0.1, 0.5, 1.5, 2.5}},
        {"the item loses its frame",
         [&](Brimshade &b) { b.desktop().change(812, {unreadable()}); },
         0,
         {0.5, 1.5, 2.5}},
        {"the application hangs",
         [](Brimshade &b) { b.desktop().change(812, {hung(application(812, u"Vault"_s))}); },
         0.25,
         {0.1, 0.5, 1.5, 2.5}},
    };
    for (const auto &[name, strike, timeout, moments] : cases) {
        for (const double moment : moments) {
            SCOPED_TRACE(std::string(name) + " at " + std::to_string(moment));
            Brimshade b(sharedDesktop());
            b.open();
            b.hide(u"Vault"_s);
            b.wait(moment);
            strike(b);
            const bool isDragged = moment >= 1.5;
            const double ends = (isDragged ? kMove : 0.35 + 0.45) + (moment == 0.1 ? 2 : 1) * timeout;
            b.wait(ends - moment - 0.001);
            EXPECT_NE(b.model().movingID(), QString());
            b.wait(0.001);
            EXPECT_EQ(b.model().movingID(), QString());
            EXPECT_EQ(b.model().message(), u"Vault: "_s + kDidNotMove);
            EXPECT_EQ(b.desktop().inspection().takeEvents().size(), isDragged ? 43u : 0u);
            b.wait(60);
            EXPECT_EQ(b.statusItem().left(), 879) << "measured anew";
            b.clickStatusItem();
            EXPECT_TRUE(b.delegate().shown());
        }
    }
}

TEST_F(Move, LeavesAVisibleSettingsWindowWhereItIsAndBringsAClosedOneBack)
{
    brimshade.desktop().setMovesAccepted(false);
    brimshade.model().onOpenSettings();
    brimshade.wait(1);
    brimshade.clickElsewhere(); // the keys go to another program
    brimshade.show(u"Vault"_s);
    brimshade.wait(kMove - 0.1);
    brimshade.desktop().quit(811);
    brimshade.wait(1.1);
    EXPECT_EQ(brimshade.model().message(), u"Vault: "_s + kDidNotMove);
    EXPECT_FALSE(brimshade.hasKeys(u"settings"_s));
    EXPECT_EQ(brimshade.model().extras().size(), 4u) << "the list is read again, whether or not the move succeeded";

    brimshade.desktop().windows().named(u"settings"_s)->close();
    brimshade.show(u"Quill"_s);
    EXPECT_EQ(brimshade.model().message(), QString());
    brimshade.wait(kMove);
    EXPECT_TRUE(brimshade.hasKeys(u"settings"_s));
    EXPECT_EQ(brimshade.windowCount(u"settings"_s), 1);
}

TEST(FailedMove, EndsThoughItsScreenIsUnplugged)
{
    for (const double moment : {0.2, 0.5, 1.0, 2.0, 2.5}) {
        SCOPED_TRACE(moment);
        Brimshade b(dividedDesktop());
        b.open();
        b.show(u"Vault"_s);
        b.wait(moment);
        b.desktop().setScreens({plainScreen({0, 0, 1920, 1080}, u"Desk"_s)});
        b.wait(60);
        EXPECT_EQ(b.model().movingID(), QString());
        EXPECT_EQ(b.statusItem().width(), 28);
        b.clickStatusItem();
        EXPECT_TRUE(b.delegate().shown());
    }
}

} // namespace brimshade::features
