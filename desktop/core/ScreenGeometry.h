#pragma once
#include "DesktopDescription.h"
#include "platform/Screens.h"

namespace brimshade::desktop {

// In points; a coordinate or a side beyond this, in a file or a script, is a mistake.
inline constexpr double kFarthest = 1e6;

// Rectangles in screen space.
platform::Screen makeScreen(const ScreenDescription &description);
// The screen that holds most of the rectangle; none if no screen holds any of it. A rectangle without area is on the
// screen that holds its corner.
std::optional<platform::Screen> screenHolding(const std::vector<platform::Screen> &screens, const QRectF &rect);

} // namespace brimshade::desktop
