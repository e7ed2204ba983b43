#include "desktop/core/BarLayout.h"
#include "support/Test.h"

namespace brimshade::desktop {

const BarGeometry kNotched{QRectF(0, 0, 1512, 37), std::pair(663., 849.), 420};
const BarGeometry kPlain{QRectF(0, 0, 1000, 24), {}, 420};

std::vector<double> lefts(const std::vector<QRectF> &frames)
{
    std::vector<double> lefts;
    for (const QRectF &frame : frames)
        lefts.push_back(frame.x());
    return lefts;
}

TEST(BarLayout, StandsFromTheRightEdgeLeftwardsAndOffScreenWhereNoRoomIsLeft)
{
    struct Case {
        const char *name;
        BarGeometry bar;
        std::vector<double> widths, lefts;
    };
    BarGeometry second = kPlain; // right of a primary screen
    second.frame.moveLeft(1512);
    second.applicationMenusEnd = 1932;
    BarGeometry left = kPlain; // left of it
    left.frame.moveLeft(-1000);
    left.applicationMenusEnd = -580;
    const Case cases[] = {
        {"nothing", kNotched, {}, {}},
        {"no gaps", kNotched, {132, 28, 30}, {1372, 1344, 1314}},
        {"behind the notch", kNotched, {655, 100, 30}, {849, 749, 719}},
        {"over the notch's left edge", kNotched, {840, 10, 30}, {664, 654, -30}},
        {"ends where the notch begins", kNotched, {841, 30, 20}, {663, -30, -50}},
        {"a wide one behind it still has room", kNotched, {840, 300, 20}, {664, 364, -20}},
        {"after one without room none has", kNotched, {841, 400, 1}, {663, -400, -401}},
        {"a divider as wide as the bar", kNotched, {132, 1400, 30}, {1372, -28, -30}},
        {"up to the menus", kPlain, {572, 10}, {420, -10}},
        {"would reach under the menus", kPlain, {572.5, 10}, {-572.5, -582.5}},
        {"off-screen is left of the primary screen", second, {100, 473, 10}, {2404, -473, -483}},
        {"left of the bar where the bar is left of zero", left, {573, 10}, {-1573, -1583}},
    };
    for (const Case &c : cases) {
        EXPECT_EQ(lefts(layOut(c.widths, c.bar)), c.lefts) << c.name;
    }
}

TEST(BarLayout, PutsWhatIsAwayLeftOfAllThatIsOffScreen)
{
    EXPECT_EQ(lefts(layOutAway({30, 20}, {}, kNotched)), (std::vector<double>{-30, -50}));
    EXPECT_EQ(lefts(layOutAway({30}, layOut({132, 28}, kNotched), kNotched)), (std::vector<double>{-30}));
    EXPECT_EQ(lefts(layOutAway({30}, layOut({841, 30, 20}, kNotched), kNotched)), (std::vector<double>{-80}));
}

TEST(BarLayout, DrawsOnlyWhatIsWhollyRightOfTheNotchOrOfTheMenus)
{
    EXPECT_TRUE(isDrawnAt(QRectF(849, 0, 30, 37), kNotched));
    EXPECT_FALSE(isDrawnAt(QRectF(848.5, 0, 30, 37), kNotched));
    EXPECT_FALSE(isDrawnAt(QRectF(600, 0, 30, 37), kNotched)) << "left of the notch";
    EXPECT_FALSE(isDrawnAt(QRectF(-30, 0, 30, 37), kNotched));
    EXPECT_TRUE(isDrawnAt(QRectF(420, 0, 30, 24), kPlain));
    EXPECT_FALSE(isDrawnAt(QRectF(419, 0, 30, 24), kPlain));
}

TEST(BarLayout, DropsLeftOfEveryItemWhoseMiddleIsAtOrRightOfThePoint)
{
    const std::vector<QRectF> frames{{1372, 0, 132, 37}, {1342, 0, 30, 37}, {1312, 0, 30, 37}, {-30, 0, 30, 37}};
    const std::pair<double, std::size_t> cases[] = {{1500, 0}, {1438.5, 0}, {1438, 1}, {1357.5, 1},
                                                    {1357, 2}, {1327, 3},   {100, 3},  {-15, 4}};
    for (const auto &[x, index] : cases)
        EXPECT_EQ(dropIndex(frames, x), index) << x;
    const QRectF away(-30, 0, 30, 37);
    EXPECT_EQ(dropIndex({QRectF(1300, 0, 30, 37), away, QRectF(1270, 0, 30, 37)}, 1200), 3u) << "past one that is away";
}

TEST(BarLayout, KeepsTheOwnItemsDistanceFromTheRightEdge)
{
    const std::vector<double> pinned{132, 40}, movable{30, 30, 50};
    const std::pair<double, std::size_t> cases[] = {{5, 0},   {-20, 0}, {180, 0}, {209, 0}, {210, 1},
                                                    {239, 1}, {240, 2}, {290, 3}, {5000, 3}};
    for (const auto &[points, index] : cases)
        EXPECT_EQ(preferredIndex(pinned, movable, points), index) << points;
    EXPECT_EQ(preferredIndex({}, {30.4}, 38), 1u) << "kept in whole points";
}

} // namespace brimshade::desktop
