#include "Brimshade.h"

namespace brimshade::features {

// The widths of the status item from now on, each with the time at which the bar shows it.
QStringList widthsOver(Brimshade &brimshade, double seconds)
{
    QStringList widths;
    double last = brimshade.statusItem().width();
    for (int step = 1; step <= qRound(seconds / 0.05); ++step) {
        brimshade.wait(0.05);
        const double width = brimshade.statusItem().width();
        if (width != last)
            widths.append(u"%1 at %2"_s.arg(width).arg(step * 0.05));
        last = width;
    }
    return widths;
}

desktop::DesktopDescription with(desktop::DesktopDescription desktop, double notchUpper)
{
    desktop.screens = {notchedScreen(notchUpper)};
    return desktop;
}

TEST(Divider, ReachesFromItsPlaceToTheNotch)
{
    Brimshade brimshade(dividedDesktop());
    EXPECT_EQ(brimshade.statusItem(), QRectF(879, 0, 453, 37));
    EXPECT_EQ(brimshade.divider().anchor(), 1332);
    EXPECT_EQ(brimshade.hiddenItems(), u"Quill Vault Relay"_s);
}

TEST(Divider, GrowsAsFarAsRoomAndReserveAllow)
{
    struct Case {
        double notchUpper;
        double width;
    };
    for (const auto &[notchUpper, width] : {Case{1274, 28}, // exactly no room
                                            Case{1273, 28}, // one more point is not worth a change
                                            Case{1272, 30}, Case{900, 402}}) {
        EXPECT_EQ(Brimshade(with(dividedDesktop(), notchUpper)).statusItem().width(), width) << notchUpper;
    }
    auto desktop = dividedDesktop();
    desktop.applications[0].extras->pop_back(); // without the control centre it stands 40 points further right
    EXPECT_EQ(Brimshade(desktop).statusItem(), QRectF(1372 - 473, 0, 473, 37));
}

TEST(Divider, StaysSmallWithoutANotch)
{
    auto desktop = dividedDesktop();
    desktop.screens = {plainScreen({0, 0, 1512, 982}, u"Desk"_s)};
    Brimshade brimshade(desktop);
    EXPECT_EQ(brimshade.statusItem().width(), 28);
    brimshade.desktop().setScreens({notchedScreen()});
    brimshade.wait(1);
    EXPECT_EQ(brimshade.statusItem().width(), 453);
}

TEST(Divider, IsNoneWhileTheModeIsOff)
{
    Brimshade brimshade;
    brimshade.open();
    brimshade.desktop().launch({application(900, u"Late"_s)});
    brimshade.desktop().setScreens({notchedScreen(800)});
    EXPECT_EQ(widthsOver(brimshade, 5), QStringList());
    EXPECT_EQ(brimshade.statusItem().width(), 28);

    brimshade.model().setDividerEnabled(true);
    brimshade.wait(1);
    EXPECT_EQ(brimshade.statusItem().width(), 1332 - 830);
    brimshade.model().setDividerEnabled(false);
    EXPECT_EQ(widthsOver(brimshade, 5), QStringList(u"28 at 0.1"_s));
    brimshade.model().onRefresh();
    EXPECT_EQ(widthsOver(brimshade, 5), QStringList());
}

TEST(Divider, IsMeasuredAgainASecondAfterAnApplicationComesOrGoes)
{
    Brimshade brimshade(dividedDesktop());
    ASSERT_TRUE(brimshade.desktop().launch({application(900, u"Late"_s)}));
    EXPECT_EQ(widthsOver(brimshade, 5), QStringList({u"28 at 1.1"_s, u"453 at 1.4"_s}));
    ASSERT_TRUE(brimshade.desktop().quit(900));
    EXPECT_EQ(widthsOver(brimshade, 5), QStringList({u"28 at 1.1"_s, u"453 at 1.4"_s}));
}

TEST(Divider, IsMeasuredOnceForApplicationsThatComeAndGoTogether)
{
    Brimshade brimshade(dividedDesktop());
    brimshade.desktop().launch({application(900, u"Late"_s)});
    brimshade.wait(0.3);
    brimshade.desktop().launch({application(901, u"Later"_s)});
    brimshade.wait(0.3);
    brimshade.desktop().quit(900);
    EXPECT_EQ(widthsOver(brimshade, 5), QStringList({u"28 at 1.1"_s, u"453 at 1.4"_s}));
}

// 30 points stay free between the notch and the divider.
TEST(Divider, TucksAwayWhatIsWiderThanItsGap)
{
    for (int width = 22; width <= 64; ++width) {
        auto desktop = sharedDesktop();
        desktop.applications.at(2) = application(812, u"Vault"_s, width);
        desktop.defaults.insert(u"NSStatusItem Preferred Position BrimshadeButton"_s, 210 + width);
        Brimshade brimshade(desktop);
        ASSERT_EQ(brimshade.bar(), u"quill | vault relay"_s);
        brimshade.open();
        brimshade.hide(u"Vault"_s);
        brimshade.wait(5);
        ASSERT_EQ(brimshade.bar(), u"quill vault | relay"_s);
        EXPECT_EQ(brimshade.hiddenItems(), u"Quill Vault"_s) << width;
        EXPECT_EQ(brimshade.isDrawn(u"vault.main"_s), width <= 30) << width;
        EXPECT_FALSE(brimshade.isDrawn(u"quill.main"_s)) << width;
    }
}

TEST(Divider, IsLeftAloneByScansAndByOtherSettings)
{
    Brimshade brimshade(dividedDesktop());
    brimshade.open();
    brimshade.model().onRefresh();
    brimshade.model().setHoverToOpen(true);
    brimshade.model().setShortcut(model::Shortcut::optionCommandN);
    brimshade.model().setDividerEnabled(true);
    EXPECT_EQ(widthsOver(brimshade, 5), QStringList());
    EXPECT_TRUE(brimshade.divider().isExpanded());
}

// A wide item that a hand drags across it pushes it behind the notch, where nobody could click it.
TEST(Divider, ComesBackFromBehindTheNotch)
{
    auto desktop = dividedDesktop();
    desktop.applications.push_back(application(820, u"Wide"_s, 60));
    Brimshade brimshade(desktop);
    brimshade.drag({brimshade.statusItem().left() - 1, 18}, {1332 + 38, 18}, platform::kCommandFlag);
    brimshade.drag({brimshade.statusItem().left() - 1, 18}, {1332 + 38, 18}, platform::kCommandFlag);
    brimshade.wait(1);
    EXPECT_EQ(brimshade.statusItem().left(), 879);
    brimshade.clickStatusItem();
    EXPECT_TRUE(brimshade.delegate().shown());
}

// A system button right of it means that it was pushed out of its place: it gets 40 points shorter, up to five times.
TEST(Divider, GivesWayInFiveSteps)
{
    auto desktop = dividedDesktop();
    desktop.applications[0] = agentWithButton({1400, 0, 20, 37});
    Brimshade brimshade(desktop);
    brimshade.desktop().setScreens({notchedScreen()}); // starts again
    brimshade.wait(0);
    EXPECT_EQ(brimshade.divider().slack(), 0);
    EXPECT_EQ(widthsOver(brimshade, 10),
              QStringList({u"28 at 0.1"_s, u"453 at 0.4"_s, u"413 at 0.8"_s, u"373 at 1.2"_s, u"333 at 1.6"_s,
                           u"293 at 2"_s, u"253 at 2.4"_s}));
    EXPECT_EQ(brimshade.divider().slack(), 200);
}

TEST(Divider, GivesWayOnlyToAButtonOfItsRowAtItsRightEdge)
{
    struct Case {
        const char *name;
        QRectF button;
        double slack;
    };
    for (const auto &[name, button, slack] : {
             Case{"ends two points left of it", {1310, 0, 20, 37}, 40},
             Case{"ends further left", {1309.5, 0, 20, 37}, 0},
             Case{"middle 19.5 points lower", {1400, 19.5, 20, 37}, 40},
             Case{"middle 20 points lower", {1400, 20, 20, 37}, 0},
         }) {
        SCOPED_TRACE(name);
        auto desktop = dividedDesktop();
        desktop.applications[0] = agentWithButton(button);
        Brimshade brimshade(desktop); // has looked once, at 0.7
        EXPECT_EQ(brimshade.divider().slack(), slack);
    }
}

TEST(Divider, GivesNoWayOnceItHasCollapsed)
{
    auto desktop = dividedDesktop();
    desktop.applications[0] = agentWithButton({1400, 0, 20, 37});
    Brimshade brimshade(desktop);
    brimshade.wait(5);
    brimshade.desktop().launch({application(900, u"Late"_s)});
    brimshade.wait(1);
    EXPECT_FALSE(brimshade.divider().isExpanded());
    EXPECT_EQ(brimshade.divider().slack(), 0);
    brimshade.wait(0.299);
    EXPECT_EQ(brimshade.divider().slack(), 0);
}

} // namespace brimshade::features
