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
    EXPECT_TRUE(dispatch.isIdle());
    showSetup();
    EXPECT_FALSE(dispatch.isIdle());
    scene().root()->setVisible(false);
    EXPECT_TRUE(dispatch.isIdle());
    scene().root()->setVisible(true);
    EXPECT_FALSE(dispatch.isIdle());
    showSettings();
    EXPECT_TRUE(dispatch.isIdle());
}

TEST_F(SetupView, StepsComeFromTheRightAndLeaveToTheLeft)
{
    showSetup();
    const auto left = [this](const QString &name) { return scene().frameOf(item(name)->parentItem()).left(); };
    const double rest = left(u"heroNotch"_s);
    flow.act();
    scene().advance(64);
    const double leaving = left(u"heroNotch"_s), coming = left(u"accessPill"_s);
    EXPECT_LT(leaving, rest - 1);
    EXPECT_GT(leaving, rest - 30);
    EXPECT_GT(coming, rest + 1);
    EXPECT_LE(coming, rest + 30);
    scene().advance(1500);
    EXPECT_NEAR(left(u"accessPill"_s), rest, 0.1);
    EXPECT_FALSE(item(u"heroNotch"_s)) << "the step that left is gone";
    flow.back();
    scene().advance(64);
    EXPECT_LT(left(u"accessPill"_s), rest) << "going back, too";
    EXPECT_GT(left(u"heroNotch"_s), rest);
}

TEST_F(SetupView, HeroOpensAndClosesInItsRhythm)
{
    setExtras(someExtras());
    showSetup();
    struct Case {
        int milliseconds; // since the case before; the view is 100 ms old at the first
        QSizeF size;
    };
    for (const Case &each :
         {Case{480, {130, 26}}, Case{3200, {360, 150}}, Case{580, {130, 26}}, Case{3200, {360, 150}}}) {
        scene().advance(each.milliseconds);
        const QSizeF size = item(u"heroBody"_s)->size();
        EXPECT_NEAR(size.width(), each.size.width(), 6) << each.milliseconds;
        EXPECT_NEAR(size.height(), each.size.height(), 4) << each.milliseconds;
    }
}

TEST_F(SetupView, TilesGrowUnderThePointerUnlessPinnedAndExplainThemselves)
{
    setExtras(someExtras());
    showSetup();
    goTo(2);
    const auto tiles = scene().findAll(u"choiceTile"_s);
    ASSERT_EQ(tiles.size(), 4);
    struct Case {
        int tile;
        double scale;
        QString tip;
    };
    const Case cases[]{
        {0, 1.05, u"Tucked into the notch. Click to keep it in the menu bar."_s},
        {1, 1.05, u"In the menu bar. Click to tuck it away."_s},
        {3, 1, u"Pinned by macOS"_s},
    };
    for (const Case &each : cases) {
        pointAt(tiles[each.tile]);
        EXPECT_NEAR(tiles[each.tile]->scale(), each.scale, 0.002) << each.tile;
        EXPECT_EQ(tip(), each.tip);
    }
    EXPECT_NEAR(tiles[0]->scale(), 1, 0.002);
    scene().movePointer({5, 5});
    scene().advance(100);
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
    key(Qt::Key_Backtab, Qt::ShiftModifier); // primary button
    key(Qt::Key_Backtab, Qt::ShiftModifier);
    key(Qt::Key_Backtab, Qt::ShiftModifier); // the last tile
    EXPECT_LE(frame(42).bottom(), scene().frameOf(item(u"choiceCounts"_s)).top());
}

} // namespace brimshade::windows
