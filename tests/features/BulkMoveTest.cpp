#include "Brimshade.h"

namespace brimshade::features {

constexpr double kLong = 200; // more than any bulk move of these desktops takes

TEST(BulkMove, BringsEveryItemWhereItWasChosenToBeAndThenOpensThePanel)
{
    Brimshade brimshade;
    brimshade.finishSetup({{u"Relay"_s, true}, {u"Quill"_s, true}});
    EXPECT_TRUE(brimshade.model().dividerEnabled());
    EXPECT_EQ(brimshade.model().movingID(), u"onboarding"_s);
    brimshade.clickStatusItem();
    EXPECT_FALSE(brimshade.delegate().shown());
    brimshade.wait(kLong);
    // Everything left of the icon is tucked away by the divider alone: Vault has to be brought back.
    EXPECT_EQ(brimshade.model().movingID(), QString());
    EXPECT_EQ(brimshade.bar(), u"quill relay | vault"_s);
    EXPECT_TRUE(brimshade.delegate().shown());
    EXPECT_EQ(brimshade.model().message(), QString());
    EXPECT_EQ(brimshade.hiddenItems(), u"Quill Relay"_s);
}

// At any moment: before the first move, in the middle of a drag and between two drags.
TEST(BulkMove, IsNotDisturbedByAnApplicationThatComes)
{
    for (int tenths = 0; tenths < 80; tenths += 2) {
        Brimshade brimshade(sharedDesktop());
        brimshade.finishSetup({{u"Relay"_s, true}, {u"Vault"_s, true}});
        brimshade.wait(0.1 * tenths);
        brimshade.desktop().launch({application(900, u"Late"_s)});
        brimshade.wait(kLong);
        EXPECT_EQ(brimshade.model().message(), QString()) << tenths;
        EXPECT_TRUE(brimshade.bar().endsWith(u'|')) << tenths;
        EXPECT_EQ(brimshade.dragCount(), 2) << tenths << ": each succeeds at the first try";
    }
}

TEST(BulkMove, KeepsThePanelClosedWhenAMoveThatWasUnderWayEnds)
{
    Brimshade brimshade(dividedDesktop());
    brimshade.model().setShortcut(model::Shortcut::controlOptionSpace);
    brimshade.open();
    brimshade.show(u"Quill"_s);
    brimshade.wait(1);
    brimshade.finishSetup({{u"Relay"_s, false}, {u"Vault"_s, false}, {u"Quill"_s, false}});
    brimshade.wait(2.5); // the single move has ended, the first of the others is under way
    EXPECT_EQ(brimshade.model().movingID(), u"onboarding"_s);
    brimshade.model().onSetHidden(brimshade.item(u"Quill"_s), true);
    brimshade.pressShortcut(); // not a click, which would disturb the drag
    EXPECT_FALSE(brimshade.delegate().shown());
    brimshade.wait(kLong);
    EXPECT_EQ(brimshade.model().movingID(), QString());
    EXPECT_EQ(brimshade.hiddenItems(), QString());
    EXPECT_TRUE(brimshade.delegate().shown());
}

TEST(BulkMove, WaitsBeforeItBeginsAndBetweenItems)
{
    Brimshade brimshade(dividedDesktop());
    brimshade.finishSetup({{u"Relay"_s, false}, {u"Quill"_s, false}});
    brimshade.wait(1.2 + 0.45 + 0.039); // the drag's first pause
    EXPECT_EQ(brimshade.dragCount(), 0);
    brimshade.wait(0.001);
    EXPECT_EQ(brimshade.dragCount(), 1);
    brimshade.wait(1.45 + 0.4 + 0.8 + 0.45 + 0.039);
    EXPECT_EQ(brimshade.dragCount(), 0);
    EXPECT_EQ(brimshade.bar(), u"vault relay | quill"_s) << "the leftmost goes first";
    brimshade.wait(0.001);
    EXPECT_EQ(brimshade.dragCount(), 1);
}

TEST(BulkMove, ShowingAloneDoesNotSwitchTheDividerOn)
{
    auto desktop = notchedDesktop();
    desktop.applications.push_back(application(820, u"Wide"_s, 300)); // reaches behind the notch
    desktop.applications.push_back(application(821, u"Lost"_s, 200));
    Brimshade brimshade(desktop);
    brimshade.finishSetup({{u"Lost"_s, false}});
    EXPECT_EQ(brimshade.model().movingID(), u"onboarding"_s);
    EXPECT_FALSE(brimshade.model().dividerEnabled());
    brimshade.wait(kLong);
    EXPECT_FALSE(brimshade.model().dividerEnabled());
    EXPECT_TRUE(brimshade.bar().endsWith(u" lost"_s));
}

TEST(BulkMove, GathersWhatFailedInOrderOfTheMessages)
{
    Brimshade brimshade(dividedDesktop());
    brimshade.desktop().setMovesAccepted(false);
    brimshade.finishSetup({{u"Vault"_s, false}, {u"Relay"_s, false}});
    brimshade.wait(kLong);
    const QString sentence = u": macOS didn't accept the move. Try again, or Cmd-drag it across the divider."_s;
    EXPECT_EQ(brimshade.model().message(), u"Some items didn't move. Relay"_s + sentence + u" Vault"_s + sentence);
    EXPECT_EQ(brimshade.dragCount(), 2); // no item is tried twice
    EXPECT_TRUE(brimshade.hasKeys(u"settings"_s));
    EXPECT_FALSE(brimshade.delegate().shown());
}

TEST(BulkMove, EndsAtOnceWhenTheBarIsNotShowing)
{
    Brimshade brimshade(dividedDesktop());
    brimshade.desktop().setMenuBarShowing(false);
    brimshade.finishSetup({{u"Vault"_s, false}, {u"Relay"_s, false}});
    brimshade.wait(1.2 + 0.45);
    EXPECT_EQ(brimshade.model().movingID(), QString());
    EXPECT_EQ(brimshade.model().message().count(u"the menu bar isn't showing"_s), 1);
}

// An item in another row counts as moved, yet the next scan finds it where it was.
TEST(BulkMove, GivesUpOnAnItemThatMovesAreWithoutEffectOn)
{
    auto desktop = notchedDesktop();
    auto other = application(830, u"Other"_s);
    other.extras->at(0).frameKind = desktop::ExtraDescription::Frame::fixed;
    other.extras->at(0).frame = {100, 400, 30, 37};
    desktop.applications.push_back(other);
    Brimshade brimshade(desktop);
    brimshade.finishSetup({{u"Other"_s, true}, {u"Relay"_s, true}, {u"Vault"_s, true}, {u"Quill"_s, true}});
    brimshade.wait(kLong);
    EXPECT_EQ(brimshade.dragCount(), 2 * 6);
    EXPECT_EQ(brimshade.model().movingID(), QString());
    EXPECT_TRUE(brimshade.delegate().shown());
}

} // namespace brimshade::features
