#include "Context.h"

namespace brimshade::windows {

class SetupView : public testing::Test, protected Context {
protected:
    QString tip()
    {
        const QQuickItem *bubble = item(u"helpTip"_s);
        for (const QQuickItem *child : bubble->childItems())
            if (bubble->isVisible() && child->property("text").isValid())
                return child->property("text").toString();
        return {};
    }
    void pointAt(const QQuickItem *item)
    {
        scene().movePointer(scene().frameOf(item).center());
        scene().advance(1500);
    }
};

TEST_F(SetupView, LooksForThePermissionOnlyWhileItCanBeSeen)
{
    model.setTrusted(false);
    goTo(1);
    EXPECT_FALSE(isLooking());
    showSetup();
    EXPECT_TRUE(isLooking());
    scene().root()->setVisible(false);
    EXPECT_FALSE(isLooking());
    scene().root()->setVisible(true);
    EXPECT_TRUE(isLooking());
    showSettings();
    EXPECT_FALSE(isLooking());
}

TEST_F(SetupView, ATipIsTrueOrGone)
{
    setExtras(someExtras());
    showSetup();
    goTo(2);
    const QQuickItem *relay = scene().findAll(u"choiceTile"_s)[1];
    pointAt(relay);
    ASSERT_EQ(tip(), u"In the menu bar. Click to tuck it away."_s);
    flow.toggle(u"relay"_s);
    scene().settle();
    EXPECT_EQ(tip(), u"Tucked into the notch. Click to keep it in the menu bar."_s);
    scene().click(scene().frameOf(relay).center());
    EXPECT_EQ(tip(), QString());
}

// More items than the window is high: the grid scrolls, five in a row.
TEST_F(SetupView, GridHasFiveColumnsAndScrolls)
{
    menubar::ExtraList many;
    for (int i = 0; i < 43; ++i)
        many.push_back(extra(u"Item %1"_s.arg(i)));
    setExtras(many);
    showSetup();
    goTo(2);
    const auto tiles = scene().findAll(u"choiceTile"_s);
    const auto frame = [&](int tile) { return scene().frameOf(tiles[tile]); };
    EXPECT_EQ(frame(0).width(), 96);
    EXPECT_EQ(frame(1).left() - frame(0).right(), 12);
    EXPECT_EQ(frame(4).top(), frame(0).top());
    EXPECT_EQ(frame(5).left(), frame(0).left());
    EXPECT_EQ(frame(5).top() - frame(0).bottom(), 14);
    EXPECT_NEAR(frame(0).left() + frame(4).right(), 640, 0.5) << "centred";
    EXPECT_TRUE(item(u"fade"_s)->isVisible()) << "there is more below";
    key(Qt::Key_Backtab, Qt::ShiftModifier); // primary button
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    key(Qt::Key_Backtab, Qt::ShiftModifier); // the last tile
    EXPECT_LE(frame(42).bottom(), scene().frameOf(item(u"choiceCounts"_s)).top());
    EXPECT_FALSE(item(u"fade"_s)->isVisible());
}

} // namespace brimshade::windows
