#include "menubar/DragPlan.h"
#include "platform/WindowServer.h"
#include "support/Test.h"

namespace brimshade::menubar {

const QRectF kCollapsedDivider(1000, 0, 28, 30);

QRectF at(double x, double width)
{
    return {x, 0, width, 30};
}

TEST(DropPoint, LiesInsideTheNearestNeighbourOrBesideTheDivider)
{
    const std::tuple<const char *, bool, std::vector<QRectF>, double> cases[] = {
        {"hide, wide neighbour", true, {at(960, 40)}, 994},
        {"hide, narrow neighbour", true, {at(984, 16)}, 996},
        {"hide, nearest of several", true, {at(960, 40), at(900, 16), at(800, 40)}, 994},
        {"hide, neighbour two points over the edge", true, {at(986, 16)}, 998},
        {"hide, an item further over it is none", true, {at(986.5, 16)}, 996},
        {"hide, first of two that end alike", true, {at(984, 16), at(960, 40)}, 996},
        {"hide, only items on the right", true, {at(1028, 40)}, 996},
        {"show, wide neighbour", false, {at(1028, 40)}, 1034},
        {"show, narrow neighbour", false, {at(1028, 16)}, 1032},
        {"show, nearest of several", false, {at(1100, 16), at(1028, 40), at(1068, 16)}, 1034},
        {"show, neighbour two points over the edge", false, {at(1026, 16)}, 1030},
        {"show, an item further over it is none", false, {at(1025.5, 16)}, 1032},
        {"show, first of two that begin alike", false, {at(1028, 16), at(1028, 40)}, 1032},
        {"show, no neighbour", false, {}, 1032},
    };
    for (const auto &[what, hide, candidates, x] : cases)
        EXPECT_EQ(dropPoint(candidates, kCollapsedDivider, hide), QPointF(x, 15)) << what;
}

TEST(DropCandidates, AreOtherItemsThatShowRightOfTheSystemButton)
{
    const auto item = [](const QString &id, const QRectF &frame) {
        MenuExtra extra;
        extra.id = id;
        extra.frame = frame;
        return extra;
    };
    const ExtraList extras{item(u"at the edge"_s, at(898, 20)), item(u"just right of it"_s, at(898.5, 20)),
                           item(u"without width"_s, at(920, 0)), item(u"caf\u00e9"_s, at(930, 20)),
                           item(u"other"_s, at(960, 20))};
    const std::vector<QRectF> beyondButton{at(898.5, 20), at(960, 20)};
    EXPECT_EQ(dropCandidates(extras, u"cafe\u0301"_s, QRectF(880, 0, 20, 30)), beyondButton);
    const std::vector<QRectF> all{at(898, 20), at(898.5, 20), at(960, 20)};
    EXPECT_EQ(dropCandidates(extras, u"cafe\u0301"_s, std::nullopt), all);
}

TEST(Showing, NeedsAnItemInReachLeftOfTheDivider)
{
    const QRectF button(880, 0, 20, 30);
    const std::tuple<const char *, QRectF, std::optional<QRectF>, bool> cases[] = {
        {"left of the divider", at(950, 30), button, true},
        {"ends two points over its edge", at(972, 30), button, true},
        {"ends further over it", at(972.5, 30), button, false},
        {"without width", at(950, 0), button, false},
        {"at the button's edge", at(898, 30), button, false},
        {"just right of it", at(898.5, 30), button, true},
        {"left of where a button would be", at(100, 30), {}, true},
        {"centre 19.5 lower", {950, 19.5, 30, 30}, button, true},
        {"in another row", {950, 20, 30, 30}, button, false},
    };
    for (const auto &[what, item, button, possible] : cases)
        EXPECT_EQ(canBeShown(item, kCollapsedDivider, button), possible) << what;
}

TEST(MenuBarWindow, IsOneAtItsLevelThatCoversThePoint)
{
    const QVariantMap bounds{{u"X"_s, 0}, {u"Y"_s, 0.0}, {u"Width"_s, 1512}, {u"Height"_s, 37.0}};
    const auto window = [](const QVariant &layer, const QVariant &bounds) {
        return QVariantMap{{QString::fromLatin1(platform::kCGWindowLayer), layer},
                           {QString::fromLatin1(platform::kCGWindowBounds), bounds}};
    };
    const auto without = [&](const QString &key) {
        QVariantMap map = bounds;
        map.remove(key);
        return map;
    };
    QVariantMap illTyped = bounds;
    illTyped[u"Width"_s] = u"1512"_s;
    const std::tuple<const char *, QVariantMap, QPointF, bool> cases[] = {
        {"covers", window(24, bounds), {1000, 15}, true},
        {"a level of another integer type", window(24LL, bounds), {1000, 15}, true},
        {"top left corner", window(24, bounds), {0, 0}, true},
        {"right edge", window(24, bounds), {1512, 15}, false},
        {"bottom edge", window(24, bounds), {1000, 37}, false},
        {"another level", window(25, bounds), {1000, 15}, false},
        {"a text as level", window(u"24"_s, bounds), {1000, 15}, false},
        {"no level", window({}, bounds), {1000, 15}, false},
        {"no bounds", window(24, {}), {1000, 15}, false},
        {"a rectangle as bounds", window(24, QRectF(0, 0, 1512, 37)), {1000, 15}, false},
        {"bounds without height", window(24, without(u"Height"_s)), {1000, 15}, false},
        {"a text as width", window(24, illTyped), {1000, 15}, false},
        {"nothing", {}, {0, 0}, false},
    };
    for (const auto &[what, info, point, covers] : cases)
        EXPECT_EQ(menuBarWindowCovers(info, point, 24), covers) << what;
}

} // namespace brimshade::menubar
