#pragma once
#include "platform/Image.h"

namespace brimshade::desktop {

// An image of that many points that draws the pixels, whatever their number; null where there are none. Any thread.
platform::Image imageOf(const QImage &pixels, QSizeF size, bool isTemplate = false);

} // namespace brimshade::desktop
