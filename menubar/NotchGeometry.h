#pragma once
#include "platform/Screens.h"

#include <QRectF>
#include <QString>
#include <optional>
#include <vector>

// Which items count as hidden or movable. Pure functions, any thread.
namespace brimshade::menubar {

// Points within which a rectangle still lies at or beyond an edge.
inline constexpr double kEdgeTolerance = 2;

// x offsets from the left edge of the screen's frame, in points; lower < upper.
struct NotchExtent {
    double lower = 0;
    double upper = 0;

    bool operator==(const NotchExtent &) const = default;
};

// Absent for a screen without a notch.
std::optional<NotchExtent> notchExtent(const platform::Screen &screen);
// The first that has one; absent where none has.
std::optional<platform::Screen> notchedScreen(const std::vector<platform::Screen> &screens);

// What an item's frame is compared with. All of it is in display space; screenLeft is the same in both spaces.
struct HidingEdges {
    std::optional<NotchExtent> notch;
    double screenLeft = 0;
    std::optional<double> buttonEdge; // the right edge of the last plain button a scan met
    std::optional<QRectF> dividerFrame; // zero while the divider has no window
};

bool isHiddenItem(const QRectF &frame, const HidingEdges &edges);
bool canMoveItem(bool isSystemAgent, const QString &identifier);

// Whether two rectangles lie in the menu bar of the same display.
bool isSameRow(const QRectF &a, const QRectF &b);
bool isZero(const QRectF &rect);

} // namespace brimshade::menubar
