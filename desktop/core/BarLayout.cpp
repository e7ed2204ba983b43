#include "BarLayout.h"

#include <algorithm>
#include <numeric>

using namespace brimshade::platform;

namespace brimshade::desktop {

namespace {

constexpr double kRightMargin = 8;
constexpr double kWidestApplicationMenus = 420;

bool hasNotch(const Screen &screen)
{
    return screen.auxiliaryTopLeftArea && screen.auxiliaryTopRightArea;
}

bool hasRoom(double left, double right, const BarGeometry &bar)
{
    return bar.notch ? right > bar.notch->first : left >= bar.applicationMenusEnd;
}

double offScreen(const BarGeometry &bar)
{
    return std::min(0., minX(bar.frame));
}

} // namespace

const Screen *barScreen(const std::vector<Screen> &screens)
{
    const auto notched = std::ranges::find_if(screens, hasNotch);
    if (notched != screens.end())
        return &*notched;
    return screens.empty() ? nullptr : &screens.front();
}

QRectF barFrame(const Screen &screen, double primaryHeight)
{
    const double height = maxY(screen.frame) - maxY(screen.visibleFrame);
    return {minX(screen.frame), primaryHeight - maxY(screen.frame), screen.frame.width(), height};
}

BarGeometry barGeometry(const Screen &screen, double primaryHeight, double applicationMenusWidth)
{
    BarGeometry bar;
    bar.frame = barFrame(screen, primaryHeight);
    if (hasNotch(screen))
        bar.notch = {maxX(*screen.auxiliaryTopLeftArea), minX(*screen.auxiliaryTopRightArea)};
    bar.applicationMenusEnd =
        minX(bar.frame) + std::min({applicationMenusWidth, kWidestApplicationMenus, bar.frame.width() / 2});
    return bar;
}

double drawnFrom(const BarGeometry &bar)
{
    return bar.notch ? bar.notch->second : bar.applicationMenusEnd;
}

std::vector<QRectF> layOut(const std::vector<double> &widths, const BarGeometry &bar)
{
    std::vector<QRectF> frames;
    frames.reserve(widths.size());
    double right = maxX(bar.frame) - kRightMargin;
    bool isOffScreen = false;
    for (const double width : widths) {
        if (!isOffScreen && !hasRoom(right - width, right, bar)) {
            isOffScreen = true;
            right = offScreen(bar);
        }
        frames.emplace_back(right - width, minY(bar.frame), width, bar.frame.height());
        right -= width;
    }
    return frames;
}

std::vector<QRectF> layOutAway(const std::vector<double> &widths, const std::vector<QRectF> &others,
                               const BarGeometry &bar)
{
    std::vector<QRectF> frames;
    double right = others.empty() ? offScreen(bar) : std::min(offScreen(bar), minX(others.back()));
    for (const double width : widths) {
        frames.emplace_back(right - width, minY(bar.frame), width, bar.frame.height());
        right -= width;
    }
    return frames;
}

double roomFor(const BarGeometry &bar)
{
    return maxX(bar.frame) - kRightMargin - drawnFrom(bar);
}

bool isDrawnAt(const QRectF &frame, const BarGeometry &bar)
{
    return minX(frame) >= drawnFrom(bar);
}

std::size_t dropIndex(const std::vector<QRectF> &frames, double x)
{
    const auto last =
        std::find_if(frames.rbegin(), frames.rend(), [x](const QRectF &frame) { return midX(frame) >= x; });
    return static_cast<std::size_t>(frames.rend() - last);
}

std::size_t preferredIndex(const std::vector<double> &pinned, const std::vector<double> &movable,
                           double pointsFromRight)
{
    constexpr double kRounding = 0.5; // the distance is kept in whole points
    double filled = std::accumulate(pinned.begin(), pinned.end(), kRightMargin);
    std::size_t index = 0;
    for (const double width : movable) {
        filled += width;
        if (filled > pointsFromRight + kRounding)
            break;
        ++index;
    }
    return index;
}

} // namespace brimshade::desktop
