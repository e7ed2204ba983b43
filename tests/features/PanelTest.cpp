#include "Brimshade.h"

namespace brimshade::features {

TEST(Panel, OpensUnderTheNotchWithTheKeysAndTheList)
{
    Brimshade brimshade;
    brimshade.clickStatusItem();
    EXPECT_EQ(brimshade.frameOf(u"panel"_s), QRectF(256, 262, 1000, 720));
    EXPECT_TRUE(brimshade.hasKeys(u"panel"_s));
    EXPECT_TRUE(brimshade.model().isOpen());
    EXPECT_EQ(brimshade.model().notch(), QSizeF(186, 37));
    EXPECT_EQ(brimshade.model().extras().size(), 5u);
    EXPECT_EQ(brimshade.model().selectedID(), QString());
}

TEST(Panel, IsClosedForTheViewsUntilTheNextTurn)
{
    Brimshade brimshade;
    brimshade.clickStatusItemNow();
    EXPECT_TRUE(brimshade.isOnScreen(u"panel"_s));
    EXPECT_FALSE(brimshade.model().isOpen());
    brimshade.clickStatusItemNow(); // closes it again before that turn
    brimshade.wait(0);
    EXPECT_FALSE(brimshade.model().isOpen());
}

TEST(Panel, ClosesOnEveryWayOutAndLeavesTheScreenAfterItsAnimation)
{
    const std::tuple<const char *, std::function<void(Brimshade &)>> ways[] = {
        {"Escape", [](Brimshade &b) { b.press(escape); }},
        {"a click elsewhere", [](Brimshade &b) { b.clickElsewhere(); }},
        {"a right click elsewhere", [](Brimshade &b) { b.click(kEmptySpot, desktop::MouseButton::right); }},
        {"the status item", [](Brimshade &b) { b.clickStatusItem(); }},
        {"the shortcut", [](Brimshade &b) { b.pressShortcut(); }},
        {"the empty area", [](Brimshade &b) { b.model().onDismiss(); }},
        {"a tile", [](Brimshade &b) { b.model().onSelect(b.item(u"Relay"_s)); }},
        {"hiding an item", [](Brimshade &b) { b.hide(u"Relay"_s); }},
        {"the settings", [](Brimshade &b) { b.model().onOpenSettings(); }},
        {"the setup guide", [](Brimshade &b) { b.model().onShowOnboarding(); }},
        {"new screens",
         [](Brimshade &b) {
             b.desktop().setScreens({notchedScreen(), plainScreen({1512, 0, 1920, 1080}, u"Side"_s)});
             b.wait(0);
         }},
    };
    for (const auto &[name, take] : ways) {
        SCOPED_TRACE(name);
        Brimshade brimshade;
        brimshade.model().setShortcut(model::Shortcut::controlOptionSpace);
        brimshade.open();
        brimshade.wait(1);
        take(brimshade);
        EXPECT_FALSE(brimshade.delegate().shown());
        EXPECT_FALSE(brimshade.model().isOpen());
        brimshade.wait(0.349);
        EXPECT_TRUE(brimshade.isOnScreen(u"panel"_s));
        brimshade.wait(0.001);
        EXPECT_FALSE(brimshade.isOnScreen(u"panel"_s));
    }
}

TEST(Panel, StaysOnScreenWhenReopenedWhileItCloses)
{
    Brimshade brimshade;
    brimshade.open();
    brimshade.clickStatusItem();
    brimshade.wait(0.2);
    brimshade.open();
    brimshade.wait(0.15); // the first closing's time is up
    EXPECT_TRUE(brimshade.isOnScreen(u"panel"_s));
    brimshade.clickStatusItem();
    brimshade.wait(0.1);
    brimshade.open();
    brimshade.wait(5);
    EXPECT_TRUE(brimshade.isOnScreen(u"panel"_s));
    EXPECT_EQ(brimshade.windowCount(u"panel"_s), 1);
}

TEST(Panel, KeepsTheWholeOfItsLastClosing)
{
    Brimshade brimshade;
    brimshade.open();
    brimshade.clickStatusItem();
    brimshade.wait(0.2);
    brimshade.open();
    brimshade.clickStatusItem();
    brimshade.wait(0.349); // the first closing's time was up at 0.15
    EXPECT_TRUE(brimshade.isOnScreen(u"panel"_s));
    brimshade.wait(0.001);
    EXPECT_FALSE(brimshade.isOnScreen(u"panel"_s));
}

TEST(Panel, StartsAfreshAtEachOpening)
{
    Brimshade brimshade;
    brimshade.open();
    brimshade.type(u"rel"_s);
    brimshade.model().setHoveredID(u"some"_s);
    brimshade.clickStatusItem();
    EXPECT_EQ(brimshade.model().hoveredID(), QString());
    EXPECT_EQ(brimshade.model().query(), u"rel"_s); // the closing panel keeps its appearance
    brimshade.open();
    EXPECT_EQ(brimshade.model().query(), QString());
    EXPECT_EQ(brimshade.model().selectedID(), QString());
}

TEST(Panel, PressesTheChosenItemOnceThePanelIsOutOfTheWay)
{
    Brimshade brimshade;
    brimshade.open();
    brimshade.press(returnKey); // nothing is selected
    EXPECT_TRUE(brimshade.delegate().shown());
    brimshade.type(u"vau"_s);
    brimshade.press(enter);
    brimshade.wait(0.219);
    EXPECT_EQ(brimshade.pressedItems(), QStringList());
    brimshade.wait(0.001);
    EXPECT_EQ(brimshade.pressedItems(), QStringList(u"vault.main"_s));
}

TEST(Panel, LeavesKeysAloneOnceClosed)
{
    Brimshade brimshade;
    brimshade.open();
    brimshade.press(escape);
    brimshade.type(u"x"_s);
    EXPECT_EQ(brimshade.model().query(), QString());
}

TEST(Panel, ShowsTheOldListBehindTheCardWhenThePermissionIsTakenAway)
{
    Brimshade brimshade;
    brimshade.open();
    brimshade.clickStatusItem();
    brimshade.desktop().setTrusted(false);
    brimshade.open();
    EXPECT_FALSE(brimshade.model().trusted());
    EXPECT_EQ(brimshade.model().extras().size(), 5u);
    brimshade.desktop().setTrusted(true);
    brimshade.clickStatusItem();
    brimshade.open();
    EXPECT_TRUE(brimshade.model().trusted());
}

TEST(Panel, OpensOnTheScreenWithTheNotchElseUnderThePointer)
{
    const auto primary = plainScreen({0, 0, 1920, 1080}, u"Desk"_s);
    const auto side = plainScreen({1920, 100, 1280, 800}, u"Side"_s);
    Brimshade brimshade;
    brimshade.desktop().setScreens({primary, side});
    brimshade.model().setShortcut(model::Shortcut::controlOptionSpace);
    brimshade.movePointer({2000, 300});
    brimshade.pressShortcut();
    EXPECT_EQ(brimshade.frameOf(u"panel"_s), QRectF(1920 + 640 - 500, 900 - 720, 1000, 720));
    EXPECT_EQ(brimshade.model().notch(), QSizeF(180, 24));
    brimshade.pressShortcut();

    auto notched = notchedScreen();
    notched.frame.moveLeft(1920);
    brimshade.desktop().setScreens({primary, notched});
    brimshade.movePointer({10, 10});
    brimshade.pressShortcut();
    EXPECT_EQ(brimshade.frameOf(u"panel"_s), QRectF(1920 + 756 - 500, 982 - 720, 1000, 720));
}

} // namespace brimshade::features
