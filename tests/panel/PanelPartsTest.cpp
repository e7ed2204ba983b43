#include "PanelScene.h"
#include "panel/FooterText.h"
#include "panel/PanelGeometry.h"
#include "panel/PanelState.h"

#include <QSignalSpy>

namespace brimshade::panel {

class PanelStateTest : public testing::Test, protected ModelFixture {
protected:
    PanelStateTest()
    {
        state.setSource(&model);
        footer.setState(&state);
    }

    PanelState state;
    FooterText footer;
};

TEST_F(PanelStateTest, ShowsTheFirstCaseThatApplies)
{
    const QString noItems = u"No menu bar items found. If you just allowed Accessibility, quit and reopen Brimshade."_s;
    const QString allFits = u"Nothing is hidden. Everything fits in your menu bar."_s;
    const std::tuple<bool, bool, int, int, bool, QString, PanelState::Body, QString> cases[] = {
        {false, true, 3, 2, true, {}, PanelState::Permission, {}},
        {false, false, 0, 0, true, {}, PanelState::Permission, {}},
        {true, false, 0, 0, true, {}, PanelState::Waiting, {}},
        {true, true, 0, 0, true, {}, PanelState::NoItems, noItems},
        {true, true, 3, 2, true, {}, PanelState::Tiles, {}},
        {true, false, 3, 2, true, {}, PanelState::Tiles, {}},
        {true, true, 0, 2, false, {}, PanelState::Tiles, allFits},
        {true, true, 3, 2, true, u"zz \"<b>"_s, PanelState::Tiles, u"No matches for “zz \"<b>”"_s},
        {true, true, 0, 2, false, u" "_s, PanelState::Tiles, {}},
    };
    for (const auto &[trusted, scanned, hidden, visible, showVisible, query, body, sentence] : cases) {
        model.setTrusted(trusted);
        model.setScanned(scanned);
        model.setExtras(makeExtras(hidden, visible));
        model.setShowVisible(showVisible);
        model.setQuery(query);
        SCOPED_TRACE(testing::Message() << hidden << '+' << visible << " \"" << qPrintable(query) << '"');
        EXPECT_EQ(state.body(), body);
        EXPECT_EQ(state.sentence(), sentence);
        model.setIsOpen(true);
        EXPECT_EQ(state.hasHeader(), body == PanelState::Tiles);
        model.setIsOpen(false);
        EXPECT_FALSE(state.hasHeader());
    }
}

TEST_F(PanelStateTest, ARecorderComesBeforeAllButThePermission)
{
    model.setExtras(makeExtras(3, 2));
    model.setScanned(true);
    model.setIsRecording(true);
    EXPECT_EQ(state.body(), PanelState::Recorder);
    EXPECT_EQ(state.sentence(), QString());
    model.setIsOpen(true);
    EXPECT_FALSE(state.hasHeader());
    model.setTrusted(false);
    EXPECT_EQ(state.body(), PanelState::Permission);
}

TEST_F(PanelStateTest, OnlyAnotherItemIsAnotherLine)
{
    QSignalSpy replaced(&footer, &FooterText::replaced);
    model::ExtraList extras = makeExtras(2, 0);
    model.setExtras(extras);
    EXPECT_TRUE(footer.isHint());
    model.setHoveredID(extras[0].id);
    EXPECT_EQ(replaced.count(), 1);
    EXPECT_EQ(footer.text(), extras[0].detail);
    EXPECT_TRUE(footer.leavingIsHint());
    extras[0].detail = u"Changed"_s;
    model.setExtras(extras);
    EXPECT_EQ(footer.text(), u"Changed"_s);
    EXPECT_EQ(replaced.count(), 1);
    model.setHoveredID(extras[1].id);
    EXPECT_EQ(replaced.count(), 2);
    EXPECT_EQ(footer.leavingText(), u"Changed"_s);
}

class PanelGeometryTest : public testing::Test, protected ModelFixture {
protected:
    PanelGeometryTest() { geometry.setSource(&model); }

    PanelGeometry geometry;
};

// The model's size leaves four points between the footer and the lower edge whenever there are tiles.
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
