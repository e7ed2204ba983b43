#pragma once
#include "platform/Image.h"

namespace brimshade::desktop {

// An image of that size in points, drawn from any number of pixels; null if there are none. Any thread.
platform::Image imageOf(const QImage &pixels, QSizeF size, bool isTemplate = false);

} // namespace brimshade::desktop
