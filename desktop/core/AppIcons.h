#pragma once
#include "DesktopDescription.h"
#include "platform/Image.h"

namespace brimshade::desktop {

// Pictures of applications, 128 × 128 points. Main thread; the pictures may be drawn on any thread.

// The icon that a description asks for: a rounded square with the name's initial for "#rrggbb", a picture file, or a
// name in the icon theme. Null if it asks for none; if the file is not a picture, the generic icon and one message on
// standard error.
platform::Image makeIcon(const ApplicationDescription &application);
platform::Image genericIcon();

} // namespace brimshade::desktop
