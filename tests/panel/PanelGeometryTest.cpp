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

} // namespace brimshade::panel
