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
    EXPECT_EQ(tiles.rowCount(), 6 * columns); // 400 points touch five rows; one beyond
    EXPECT_EQ(tiles.index(0).data(TilesModel::IsNewRole), true);
    tiles.setProperty("viewBottom", 400 + 840);
    tiles.setProperty("viewTop", 840);
    EXPECT_EQ(tiles.rowCount(), 7 * columns);
    EXPECT_EQ(tiles.index(0).data(TilesModel::PositionRole), 9 * columns);
    EXPECT_EQ(tiles.index(tiles.rowCount() - 1).data(TilesModel::IsNewRole), false);
}

} // namespace brimshade::panel
