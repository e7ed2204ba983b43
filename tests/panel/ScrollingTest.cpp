#include "PanelScene.h"

#include <QWheelEvent>

namespace brimshade::panel {

constexpr int kColumns = 9;
constexpr int kRowsInView = 8; // what 656 points of tab can touch

class ScrollingTest : public testing::Test {
protected:
    ScrollingTest() : panel(6000, 4000) { panel.open(); }

    double viewBottom() const { return panel.frame(u"sections"_s).bottom(); }

    PanelScene panel;
};

TEST_F(ScrollingTest, TheTabStaysInThePanelAndOnlyTilesInViewExist)
{
    EXPECT_EQ(panel.frame(u"notchTab"_s).height(), 720 - 64);
    EXPECT_LE(panel.tileNames().size(), (kRowsInView + 2) * kColumns);
    EXPECT_EQ(panel.frame(u"footer"_s).bottom(), 720 - 64 - 4);
}

TEST_F(ScrollingTest, TheSelectedTileIsKeptInView)
{
    panel.model.moveSelection(1);
    panel.model.moveSelection(40 * kColumns);
    panel.finishMotion();
    const QString name = panel.model.extraWithID(panel.model.selectedID())->name;
    ASSERT_NE(panel.tile(name), nullptr);
    const QRectF frame = panel.scene.frameOf(panel.tile(name));
    EXPECT_GE(frame.top(), 32);
    EXPECT_LE(frame.bottom(), viewBottom());
    EXPECT_LE(panel.tileNames().size(), (kRowsInView + 2) * kColumns);
    panel.model.moveSelection(1'000'000); // the last of the other section
    panel.finishMotion();
    const auto last = panel.scene.frameOf(panel.tile(panel.model.extras().back().name));
    EXPECT_EQ(last.bottom(), viewBottom());
    EXPECT_EQ(panel.tile(u"Relay"_s), nullptr);
}

TEST_F(ScrollingTest, TheWheelMovesTheSectionsAndStopsAtTheirEnds)
{
    const QRectF before = panel.scene.frameOf(panel.tile(u"Relay"_s));
    const auto wheel = [&](int notches) {
        const QPointF at = panel.frame(u"sections"_s).center();
        QWheelEvent event(at, at, {}, {0, notches * 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(panel.scene.window(), &event);
        panel.finishMotion();
    };
    wheel(2);
    EXPECT_EQ(panel.scene.frameOf(panel.tile(u"Relay"_s)), before);
    wheel(-2);
    EXPECT_EQ(panel.scene.frameOf(panel.tile(u"Relay"_s)).top(), before.top() - 120);
    wheel(5);
    EXPECT_EQ(panel.scene.frameOf(panel.tile(u"Relay"_s)), before);
}

TEST_F(ScrollingTest, TheScrollerStandsBesideTheNames)
{
    const QRectF scroller = panel.frame(u"scroller"_s);
    const QRectF content = panel.frame(u"content"_s);
    EXPECT_GE(scroller.left(), content.right() + 4);
    EXPECT_LE(scroller.right(), panel.frame(u"notchTab"_s).right() - 14 - 4);
    EXPECT_EQ(panel.scene.find(u"upperFade"_s)->opacity(), 0);
    panel.model.moveSelection(1'000'000);
    panel.finishMotion();
    EXPECT_EQ(panel.scene.find(u"upperFade"_s)->opacity(), 1);
    EXPECT_EQ(panel.scene.find(u"fade"_s)->opacity(), 0);
}

TEST_F(ScrollingTest, ASearchThatFitsIsShownFromItsTop)
{
    panel.model.moveSelection(3000);
    panel.finishMotion();
    panel.model.setQuery(u"Relay 12"_s);
    panel.model.setQuery(u"Relay 1200"_s);
    panel.finishMotion();
    EXPECT_EQ(panel.frame(u"hiddenSectionTitle"_s).top(), 32 + 10);
    EXPECT_EQ(panel.tileNames(), QStringList{u"Relay 1200"_s});
    EXPECT_FALSE(panel.scene.find(u"scroller"_s)->isVisible());
}

} // namespace brimshade::panel
