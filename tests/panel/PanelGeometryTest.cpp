#include "panel/PanelGeometry.h"
#include "PanelScene.h"

namespace brimshade::panel {

class PanelGeometryTest : public testing::Test, protected ModelFixture {
protected:
    PanelGeometryTest() { geometry.setSource(&model); }

    PanelGeometry geometry;
};

// The model's size leaves the footer four points above the lower edge whenever there are tiles.
TEST_F(PanelGeometryTest, StacksTheSectionsAndTheFooter)
{
    const std::tuple<int, int, double, double> cases[] = {
        {3, 2, 10 + 98 + 14, 10 + 98 + 14 + 98},
        {12, 3, 10 + 182 + 14, 10 + 182 + 14 + 98},
        {0, 5, 10, 10 + 98},
        {27, 0, 10, 10 + 266},
    };
    for (const auto &[hidden, visible, visibleY, contentHeight] : cases) {
        model.setExtras(makeExtras(hidden, visible));
        SCOPED_TRACE(testing::Message() << hidden << '+' << visible);
        if (visible > 0) {
            EXPECT_EQ(geometry.visibleSectionY(), visibleY);
        }
        EXPECT_EQ(geometry.contentHeight(), contentHeight);
        EXPECT_EQ(geometry.viewportHeight(), contentHeight);
        EXPECT_EQ(geometry.footerY(), contentHeight + 14);
        EXPECT_EQ(geometry.openSize(), model.panelSize());
        EXPECT_EQ(model.notch().height() + geometry.footerY() + 18 + 4, geometry.openSize().height());
    }
}

TEST_F(PanelGeometryTest, ScrollsOnlyWhatDoesNotFit)
{
    model.setExtras(makeExtras(400, 2));
    geometry.setProperty("limit", 600);
    EXPECT_EQ(geometry.openSize().height(), 600);
    EXPECT_EQ(geometry.viewportHeight(), 600 - 32 - 36);
    EXPECT_EQ(geometry.footerY(), 600 - 32 - 22);
    EXPECT_EQ(geometry.clampedScroll(-40), 0);
    EXPECT_EQ(geometry.clampedScroll(1e9), geometry.contentHeight() - geometry.viewportHeight());
}

TEST_F(PanelGeometryTest, BringsTheSelectedTileIntoViewAndNoFurther)
{
    model.setExtras(makeExtras(400, 30));
    geometry.setProperty("limit", 600);
    const auto &extras = model.extras();
    const double view = geometry.viewportHeight();
    const double end = geometry.contentHeight() - view;
    const auto rowTop = [](int row) { return 10 + 24 + row * 84.0; };
    EXPECT_EQ(geometry.scrollShowing(extras[0].id, 700), 0) << "the title above the first row is shown too";
    EXPECT_EQ(geometry.scrollShowing(extras[20].id, 10), 10) << "in view already";
    EXPECT_EQ(geometry.scrollShowing(extras[90].id, 0), rowTop(10) + 84 - view) << "from below";
    EXPECT_EQ(geometry.scrollShowing(extras[90].id, 2000), rowTop(10) - 10) << "from above";
    EXPECT_EQ(geometry.scrollShowing(extras[429].id, 0), end);
    EXPECT_EQ(geometry.scrollShowing(u"gone"_s, 500), 500);
    EXPECT_EQ(geometry.scrollShowing(u"gone"_s, 1e9), end) << "what went took its room with it";
}

} // namespace brimshade::panel
