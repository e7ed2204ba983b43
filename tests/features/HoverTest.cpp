#include "Brimshade.h"

namespace brimshade::features {

class Hover : public testing::Test {
protected:
    Brimshade brimshade{notchedDesktop({{u"hoverToOpen"_s, true}})};

    void openByHover()
    {
        brimshade.movePointer(kOnNotch);
        brimshade.wait(0.18);
        ASSERT_TRUE(brimshade.delegate().shown());
    }
};

TEST_F(Hover, OpensOnceThePointerHasRestedOnTheNotch)
{
    EXPECT_EQ(brimshade.frameOf(u"strip"_s), QRectF(663, 945, 186, 37));
    brimshade.movePointer(kOnNotch);
    brimshade.wait(0.179);
    brimshade.movePointer(kEmptySpot);
    brimshade.wait(1); // less than a panel opened by hovering would stay
    EXPECT_FALSE(brimshade.delegate().shown());

    brimshade.movePointer(kOnNotch);
    brimshade.wait(0.179);
    EXPECT_FALSE(brimshade.delegate().shown());
    brimshade.wait(0.001);
    EXPECT_TRUE(brimshade.delegate().shown());
    EXPECT_FALSE(brimshade.hasKeys(u"panel"_s)); // typing still goes where it went before
}

TEST_F(Hover, ReachesFromTheTopEdgeOfTheScreenToTheEndOfTheBar)
{
    for (const auto &[y, isInside] : {std::pair(0., true), {36.9, true}, {37., false}}) {
        brimshade.movePointer({756, y});
        brimshade.wait(1);
        EXPECT_EQ(brimshade.delegate().shown(), isInside) << y;
        brimshade.movePointer(kEmptySpot);
        brimshade.model().onDismiss();
        brimshade.wait(1);
    }
}

TEST_F(Hover, OpensOncePerEntry)
{
    openByHover();
    brimshade.model().onDismiss();
    brimshade.wait(5);
    EXPECT_FALSE(brimshade.delegate().shown());
}

TEST_F(Hover, ClosesWithTheFirstLookTwoAndAHalfSecondsAfterOneThatSawThePointerAway)
{
    openByHover();
    brimshade.wait(0.1);
    brimshade.movePointer(kEmptySpot); // seen away at 0.25, so closed at 2.75
    brimshade.wait(2.649);
    EXPECT_TRUE(brimshade.delegate().shown());
    brimshade.wait(0.001);
    EXPECT_FALSE(brimshade.delegate().shown());
}

TEST_F(Hover, StartsCountingAgainWhenThePointerCameBack)
{
    openByHover();
    brimshade.movePointer(kEmptySpot);
    brimshade.wait(2.6);
    brimshade.movePointer(kOnNotch);
    brimshade.wait(30);
    EXPECT_TRUE(brimshade.delegate().shown());
    brimshade.movePointer(kEmptySpot);
    brimshade.wait(2.5);
    EXPECT_TRUE(brimshade.delegate().shown());
    brimshade.wait(0.25);
    EXPECT_FALSE(brimshade.delegate().shown());
}

TEST_F(Hover, CountsEightPointsBesideTheVisiblePanelAsInside)
{
    openByHover();
    const QSizeF size = brimshade.model().panelSize();
    const double edge = 756 + size.width() / 2 + 8;
    brimshade.movePointer({edge - 1, 20});
    brimshade.wait(10);
    EXPECT_TRUE(brimshade.delegate().shown());
    brimshade.movePointer({edge + 1, 20});
    brimshade.wait(2.75);
    EXPECT_FALSE(brimshade.delegate().shown());
}

TEST_F(Hover, NeverClosesWhatAClickOpened)
{
    brimshade.open();
    brimshade.movePointer(kOnNotch);
    brimshade.wait(1);
    brimshade.movePointer(kEmptySpot);
    brimshade.wait(30);
    EXPECT_TRUE(brimshade.delegate().shown());
}

TEST_F(Hover, KeepsNoWatchOverTheNextOpening)
{
    openByHover();
    brimshade.clickStatusItem();
    brimshade.open(); // with a click, while the pointer is away from the panel
    brimshade.movePointer(kEmptySpot);
    brimshade.wait(30);
    EXPECT_TRUE(brimshade.delegate().shown());
}

TEST_F(Hover, StaysWithTheKeysOnceTheProgramWasAskedForItsPanel)
{
    openByHover();
    brimshade.delegate().openPanel();
    EXPECT_TRUE(brimshade.hasKeys(u"panel"_s));
    brimshade.movePointer(kEmptySpot);
    brimshade.wait(30);
    EXPECT_TRUE(brimshade.delegate().shown());

    brimshade.type(u"rel"_s);
    brimshade.delegate().openPanel(); // it is open already
    EXPECT_EQ(brimshade.model().query(), u"rel"_s);
    brimshade.delegate().togglePanel();
    EXPECT_FALSE(brimshade.delegate().shown());
}

TEST_F(Hover, FollowsTheSettingAndTheScreens)
{
    brimshade.desktop().setScreens({notchedScreen(800)});
    brimshade.wait(0);
    EXPECT_EQ(brimshade.frameOf(u"strip"_s), QRectF(663, 945, 137, 37));
    brimshade.desktop().setScreens({plainScreen({0, 0, 1920, 1080}, u"Desk"_s)});
    brimshade.wait(0);
    EXPECT_FALSE(brimshade.isOnScreen(u"strip"_s));
    brimshade.desktop().setScreens({notchedScreen()});
    brimshade.wait(0);
    EXPECT_TRUE(brimshade.isOnScreen(u"strip"_s));
    brimshade.model().setHoverToOpen(false);
    EXPECT_FALSE(brimshade.isOnScreen(u"strip"_s));
}

TEST_F(Hover, ForgetsARestOnAStripThatIsGone)
{
    brimshade.movePointer(kOnNotch);
    brimshade.wait(0.1);
    brimshade.model().setHoverToOpen(false);
    brimshade.wait(1);
    EXPECT_FALSE(brimshade.delegate().shown());
}

TEST_F(Hover, IsRefusedWhileAnItemMoves)
{
    brimshade.open();
    brimshade.hide(u"Relay"_s);
    brimshade.movePointer(kOnNotch);
    brimshade.wait(0.3);
    EXPECT_FALSE(brimshade.delegate().shown());
}

} // namespace brimshade::features
