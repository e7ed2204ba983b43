#include "NotchGeometry.h"

#include <algorithm>
#include <cmath>

namespace brimshade::menubar {

using namespace Qt::StringLiterals;
using platform::maxX;
using platform::midY;
using platform::minX;

namespace {

constexpr double kRowTolerance = 20; // between vertical centres

bool isBehindNotch(const QRectF &frame, const NotchExtent &notch, double screenLeft)
{
    return minX(frame) < screenLeft + notch.upper && maxX(frame) > screenLeft + notch.lower;
}

// Laid off-screen to the left, or not readable.
bool isWithoutExtent(const QRectF &frame)
{
    return maxX(frame) <= 0 || frame.width() == 0;
}

bool isLeftOfDivider(const QRectF &frame, const QRectF &divider)
{
    return !isZero(divider) && maxX(frame) <= minX(divider) + kEdgeTolerance && isSameRow(frame, divider);
}

} // namespace

std::optional<NotchExtent> notchExtent(const platform::Screen &screen)
{
    const auto &left = screen.auxiliaryTopLeftArea;
    const auto &right = screen.auxiliaryTopRightArea;
    if (!left || !right || maxX(*left) >= minX(*right))
        return std::nullopt;
    return NotchExtent{maxX(*left) - minX(screen.frame), minX(*right) - minX(screen.frame)};
}

std::optional<platform::Screen> notchedScreen(const std::vector<platform::Screen> &screens)
{
    const auto notched =
        std::ranges::find_if(screens, [](const auto &screen) { return notchExtent(screen).has_value(); });
    return notched == screens.end() ? std::nullopt : std::optional(*notched);
}

bool isHiddenItem(const QRectF &frame, const HidingEdges &edges)
{
    return (edges.notch && isBehindNotch(frame, *edges.notch, edges.screenLeft))
        || (edges.buttonEdge && maxX(frame) <= *edges.buttonEdge + kEdgeTolerance) || isWithoutExtent(frame)
        || (edges.dividerFrame && isLeftOfDivider(frame, *edges.dividerFrame));
}

bool canMoveItem(bool isSystemAgent, const QString &identifier)
{
    return !isSystemAgent || !(identifier.endsWith(u".clock"_s) || identifier.endsWith(u".controlcenter"_s));
}

bool isSameRow(const QRectF &a, const QRectF &b)
{
    return std::abs(midY(a) - midY(b)) < kRowTolerance;
}

bool isZero(const QRectF &rect)
{
    return rect.x() == 0 && rect.y() == 0 && rect.width() == 0 && rect.height() == 0;
}

} // namespace brimshade::menubar
