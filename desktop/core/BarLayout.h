#pragma once
#include "platform/Screens.h"

#include <utility>
#include <vector>

// Where a bar's items stand. Pure functions; lengths in points, rectangles in display space.
namespace brimshade::desktop {

inline constexpr double kItemPicture = 18; // the side of an item's square picture
inline constexpr double kItemPadding = 8; // at each side of it
inline constexpr double kLabelGap = 5; // between it and a label

// The bar with status items on its screen.
struct BarGeometry {
    QRectF frame; // of the bar
    std::optional<std::pair<double, double>> notch; // x of its edges
    double applicationMenusEnd = 0; // x

    bool operator==(const BarGeometry &) const = default;
};

// The screen with the bar: the first one with a notch, else the primary one; null without any screen.
const platform::Screen *barScreen(const std::vector<platform::Screen> &screens);
// Every screen has a bar, at its top.
QRectF barFrame(const platform::Screen &screen, double primaryHeight);
// The geometry of the bar on that screen. The application menus fill the given width from its left edge, but at most
// 420 points and at most half of the bar.
BarGeometry barGeometry(const platform::Screen &screen, double primaryHeight, double applicationMenusWidth);

double drawnFrom(const BarGeometry &bar); // x

// Items from right to left; the frames in the same order. The first that has no room and all after it stand
// off-screen, leftwards from x = 0, or from the bar's left edge when that is further left.
std::vector<QRectF> layOut(const std::vector<double> &widths, const BarGeometry &bar);

// The frames of items that stay off-screen whatever room there is: left of all that stand there already.
std::vector<QRectF> layOutAway(const std::vector<double> &widths, const std::vector<QRectF> &others,
                               const BarGeometry &bar);

// Points available to the items that are drawn.
double roomFor(const BarGeometry &bar);

// Wholly right of the notch or, without one, of the application menus: only then is an item drawn and takes clicks.
bool isDrawnAt(const QRectF &frame, const BarGeometry &bar);

// How many of the items, from right to left, belong right of one that is dropped at x: up to the last one whose middle
// is at x or right of it.
std::size_t dropIndex(const std::vector<QRectF> &frames, double x);

// How many movable items, from right to left, stand right of our own item if its right edge is to stay that far from
// the bar's right edge.
std::size_t preferredIndex(const std::vector<double> &pinned, const std::vector<double> &movable,
                           double pointsFromRight);

} // namespace brimshade::desktop
