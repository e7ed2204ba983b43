#include "panel/TilesModel.h"
#include "PanelScene.h"
#include "panel/TilesInView.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>

namespace brimshade::panel {

TEST(TilesInView, AreTheRowsTouchedAndOneBeyondOnEitherSide)
{
    const std::tuple<double, double, int, int, int, int> cases[] = {
        {0, 74, 9, 27, 0, 18},
        {0, 84, 9, 27, 0, 27},
        {0, 0.5, 4, 3, 0, 3},
        {-500, -200, 4, 40, 0, 0},
        {5000, 5200, 4, 40, 40, 40},
        {84, 168, 4, 400, 0, 16},
        {8400, 8484, 9, 10000, 891, 927},
        {0, 500, 4, 0, 0, 0},
    };
    for (const auto &[top, bottom, columns, count, first, end] : cases) {
        EXPECT_EQ(tilesInView(top, bottom, columns, count), (std::pair{first, end}))
            << top << ".." << bottom << " of " << count;
    }
}

class TilesModelTest : public testing::Test, protected ModelFixture {
protected:
    TilesModelTest()
    {
        tiles.setProperty("section", TilesModel::BehindTheNotch);
        tiles.setProperty("viewBottom", 400);
        tiles.setSource(&model);
    }

    QStringList names() const
    {
        QStringList result;
        for (int row = 0; row < tiles.rowCount(); ++row)
            result << tiles.index(row).data(TilesModel::NameRole).toString();
        return result;
    }

    void show(const QString &names)
    {
        model::ExtraList extras;
        for (const QString &name : names.split(u' ', Qt::SkipEmptyParts))
            extras.push_back(makeExtra(name, true));
        model.setExtras(std::move(extras));
    }

    TilesModel tiles;
    QAbstractItemModelTester tester{&tiles, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(TilesModelTest, PacedManyNewOnesComeAFewATurnInTheirPlacesAndAsNew)
{
    tiles.setProperty("isPaced", true);
    show(u"a b c d e f g h i j"_s);
    EXPECT_EQ(names(), u"a b c d"_s.split(u' '));
    QCoreApplication::processEvents();
    EXPECT_EQ(names(), u"a b c d e f g h"_s.split(u' '));
    show(u"b h i j k"_s); // while some are held back
    EXPECT_EQ(names(), u"b h i j k"_s.split(u' '));
    QCoreApplication::processEvents();
    show(u"1 2 3 b 4 5 h i j k"_s);
    EXPECT_EQ(names(), u"1 2 3 b 4 h i j k"_s.split(u' '));
    QCoreApplication::processEvents();
    EXPECT_EQ(names(), u"1 2 3 b 4 5 h i j k"_s.split(u' '));
    for (int row = 0; row < tiles.rowCount(); ++row)
        EXPECT_TRUE(tiles.index(row).data(TilesModel::IsNewRole).toBool()) << row;
}

TEST_F(TilesModelTest, WhileTheViewIsUnseenNewOnesWaitAndThenComeAsNew)
{
    show(u"a b"_s);
    tiles.setProperty("isPaced", true);
    tiles.setUnseen(true);
    show(u"c b"_s);
    EXPECT_EQ(names(), QStringList(u"b"_s));
    QCoreApplication::processEvents();
    EXPECT_EQ(names(), QStringList(u"b"_s));
    tiles.setUnseen(false);
    EXPECT_EQ(names(), (QStringList{u"c"_s, u"b"_s}));
    EXPECT_TRUE(tiles.index(0).data(TilesModel::IsNewRole).toBool());
}

TEST_F(TilesModelTest, AnyListFollowsAnyOtherEvenWithARepeatedId)
{
    QRandomGenerator random(7);
    for (int round = 0; round < 300; ++round) {
        QString list;
        const int count = random.bounded(12);
        for (int i = 0; i < count; ++i)
            list += QChar(u'a' + random.bounded(14)) + u" "_s;
        show(list);
        ASSERT_EQ(names(), list.split(u' ', Qt::SkipEmptyParts)) << "round " << round;
        for (int row = 0; row < tiles.rowCount(); ++row)
            ASSERT_EQ(tiles.index(row).data(TilesModel::PositionRole), row);
    }
}

TEST_F(TilesModelTest, ScrollingBringsRowsThatAreNotNew)
{
    model.setExtras(makeExtras(400, 0));
    const int columns = model.columns();
    EXPECT_EQ(tiles.rowCount(), 6 * columns); // 400 points touch five rows; one more is created
    EXPECT_EQ(tiles.index(0).data(TilesModel::IsNewRole), true);
    QCoreApplication::processEvents(); // the turn in which the view follows the items
    tiles.setProperty("viewBottom", 400 + 840);
    tiles.setProperty("viewTop", 840);
    EXPECT_EQ(tiles.rowCount(), 7 * columns);
    EXPECT_EQ(tiles.index(0).data(TilesModel::PositionRole), 9 * columns);
    EXPECT_EQ(tiles.index(tiles.rowCount() - 1).data(TilesModel::IsNewRole), false);
}

TEST_F(TilesModelTest, WhatTheFirstItemsBringIntoViewIsFirstWhateverOrderTheViewLearnsThemIn)
{
    tiles.setProperty("viewBottom", 1);
    model.setExtras(makeExtras(40, 0));
    tiles.setProperty("viewBottom", 400);
    QCoreApplication::processEvents();
    const int rows = tiles.rowCount();
    EXPECT_GT(rows, 30);
    for (int row = 0; row < rows; ++row)
        EXPECT_TRUE(tiles.index(row).data(TilesModel::IsFirstRole).toBool()) << row;
    model.setExtras(makeExtras(41, 0));
    EXPECT_FALSE(tiles.index(rows).data(TilesModel::IsFirstRole).toBool());
    EXPECT_TRUE(tiles.index(rows).data(TilesModel::IsNewRole).toBool());
}

TEST_F(TilesModelTest, WhatLeavesStaysLastAndAsItWasUntilItIsDroppedOrComesBack)
{
    show(u"a b c"_s);
    tiles.setKeepsLeaving(true);
    const auto leaving = [&] {
        QStringList ids;
        for (int row = 0; row < tiles.rowCount(); ++row) {
            if (tiles.index(row).data(TilesModel::IsLeavingRole).toBool())
                ids << tiles.index(row).data(TilesModel::ExtraIDRole).toString();
        }
        return ids;
    };
    show(u"b d"_s);
    EXPECT_EQ(names(), QStringList({u"b"_s, u"d"_s, u"a"_s, u"c"_s}));
    EXPECT_EQ(leaving(), QStringList({u"a"_s, u"c"_s}));
    EXPECT_EQ(tiles.index(3).data(TilesModel::PositionRole), 2);
    tiles.drop(u"b"_s);
    tiles.drop(u"a"_s);
    EXPECT_EQ(names(), QStringList({u"b"_s, u"d"_s, u"c"_s})) << "only what leaves can be dropped";
    show(u"c"_s);
    EXPECT_EQ(leaving(), QStringList({u"b"_s, u"d"_s}));
    EXPECT_EQ(tiles.index(0).data(TilesModel::PositionRole), 0);
    tiles.setKeepsLeaving(false);
    EXPECT_EQ(names(), QStringList{u"c"_s});
}

} // namespace brimshade::panel
