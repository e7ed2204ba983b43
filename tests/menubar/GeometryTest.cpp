#include "menubar/NotchGeometry.h"
#include "support/Test.h"

namespace brimshade::menubar {

TEST(NotchExtent, IsTheGapBetweenTheAreasBesideIt)
{
    const QRectF frame(100, 0, 1512, 982);
    const std::tuple<const char *, std::optional<QRectF>, std::optional<QRectF>, std::optional<NotchExtent>> cases[] = {
        {"notch", QRectF(100, 945, 663, 37), QRectF(949, 945, 663, 37), NotchExtent{663, 849}},
        {"no left area", {}, QRectF(949, 945, 663, 37), {}},
        {"no right area", QRectF(100, 945, 663, 37), {}, {}},
        {"areas that touch", QRectF(100, 945, 663, 37), QRectF(763, 945, 663, 37), {}},
        {"areas that overlap", QRectF(100, 945, 663, 37), QRectF(700, 945, 663, 37), {}},
    };
    for (const auto &[what, left, right, extent] : cases) {
        platform::Screen screen;
        screen.frame = frame;
        screen.auxiliaryTopLeftArea = left;
        screen.auxiliaryTopRightArea = right;
        EXPECT_EQ(notchExtent(screen), extent) << what;
        EXPECT_EQ(notchedScreen({platform::Screen(), screen}), extent ? std::optional(screen) : std::nullopt) << what;
    }
}

constexpr NotchExtent kNotch{600, 800};
const QRectF kDivider(1000, 0, 28, 30);

HidingEdges edges(std::optional<NotchExtent> notch, double screenLeft = 0)
{
    return {notch, screenLeft, std::nullopt, std::nullopt};
}

HidingEdges buttonAt(double x)
{
    return {std::nullopt, 0, x, std::nullopt};
}

HidingEdges dividerAt(const QRectF &frame)
{
    return {std::nullopt, 0, std::nullopt, frame};
}

TEST(HiddenRule, DecidesByNotchButtonExtentAndDivider)
{
    const std::tuple<const char *, QRectF, HidingEdges, bool> cases[] = {
        {"nothing to hide it", {900, 0, 30, 30}, edges({}), false},
        {"ends where the notch begins", {570, 0, 30, 30}, edges(kNotch), false},
        {"overlaps its left edge a little", {570, 0, 30.25, 30}, edges(kNotch), true},
        {"overlaps its right edge a little", {799.75, 0, 30, 30}, edges(kNotch), true},
        {"begins where the notch ends", {800, 0, 30, 30}, edges(kNotch), false},
        {"covers the notch", {500, 0, 400, 30}, edges(kNotch), true},
        {"notch of a screen further right", {700, 0, 30, 30}, edges(kNotch, 100), true},
        {"left of that notch", {650, 0, 30, 30}, edges(kNotch, 100), false},
        {"another screen's bar under the same x", {700, 900, 30, 30}, edges(kNotch), true},
        {"two points beyond the button", {872, 0, 30, 30}, buttonAt(900), true},
        {"more than two points beyond it", {872.5, 0, 30, 30}, buttonAt(900), false},
        {"ends at x = 0", {-30, 0, 30, 30}, edges({}), true},
        {"ends right of x = 0", {-29, 0, 30, 30}, edges({}), false},
        {"no width", {900, 0, 0, 30}, edges({}), true},
        {"nothing could be read", {}, edges({}), true},
        {"two points beyond the divider's edge", {972, 0, 30, 30}, dividerAt(kDivider), true},
        {"more than two points beyond it", {972.5, 0, 30, 30}, dividerAt(kDivider), false},
        {"left of the divider, centre 19 lower", {900, 19, 30, 30}, dividerAt(kDivider), true},
        {"left of it, in another row", {900, 20, 30, 30}, dividerAt(kDivider), false},
        {"left of it, in a row above", {900, -20, 30, 30}, dividerAt(kDivider), false},
        {"a divider without a window", {900, 0, 30, 30}, dividerAt({}), false},
        {"a divider at the origin that is not zero", {-10, 0, 12, 30}, dividerAt({0, 0, 0, 30}), true},
        {"right of the divider, behind the notch",
         {700, 0, 30, 30},
         {kNotch, 0, std::nullopt, QRectF(500, 0, 28, 30)},
         true},
    };
    for (const auto &[what, frame, edges, hidden] : cases)
        EXPECT_EQ(isHiddenItem(frame, edges), hidden) << what;
}

TEST(MovableRule, PinsTheClockAndTheControlCentreOfTheSystem)
{
    const std::tuple<bool, QString, bool> cases[] = {
        {true, u"com.apple.menuextra.clock"_s, false},
        {true, u"com.apple.menuextra.controlcenter"_s, false},
        {true, u"com.apple.menuextra.Clock"_s, true},
        {true, u"clock"_s, true},
        {true, u"com.apple.menuextra.clock.second"_s, true},
        {true, QString(), true},
        {false, u"app.clock"_s, true},
    };
    for (const auto &[isSystemAgent, identifier, movable] : cases)
        EXPECT_EQ(canMoveItem(isSystemAgent, identifier), movable) << qPrintable(identifier);
}

} // namespace brimshade::menubar
