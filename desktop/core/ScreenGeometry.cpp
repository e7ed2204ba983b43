#include "ScreenGeometry.h"

#include <algorithm>

using namespace brimshade::platform;

namespace brimshade::desktop {

Screen makeScreen(const ScreenDescription &description)
{
    const QRectF &frame = description.frame;
    Screen screen;
    screen.localizedName = description.name;
    screen.frame = frame;
    screen.visibleFrame = {frame.x(), frame.y(), frame.width(), frame.height() - description.menuBarHeight};
    screen.safeAreaTop = description.safeAreaTop;
    if (description.notch) {
        const auto [lower, upper] = *description.notch;
        const double y = maxY(frame) - description.safeAreaTop;
        screen.auxiliaryTopLeftArea = QRectF(frame.x(), y, lower, description.safeAreaTop);
        screen.auxiliaryTopRightArea = QRectF(frame.x() + upper, y, frame.width() - upper, description.safeAreaTop);
    }
    return screen;
}

std::optional<Screen> screenHolding(const std::vector<Screen> &screens, const QRectF &rect)
{
    const Screen *best = nullptr;
    double most = 0;
    for (const Screen &screen : screens) {
        if (rect.isEmpty() && containsPoint(screen.frame, rect.topLeft()))
            return screen;
        const QRectF shared = screen.frame.intersected(rect);
        if (const double area = shared.width() * shared.height(); area > most) {
            most = area;
            best = &screen;
        }
    }
    return best ? std::optional(*best) : std::nullopt;
}

} // namespace brimshade::desktop
