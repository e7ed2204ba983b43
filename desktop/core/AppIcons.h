#pragma once
#include "DesktopDescription.h"
#include "platform/Image.h"

namespace brimshade::desktop {

// Pictures of applications, 128 × 128 points. Main thread; what comes out may be drawn on any.

// What a description asks for: "#rrggbb" a rounded square with the initial of the name; a picture file; a name in the
// icon theme. Null where it asks for none; for a file that is no picture, the generic icon and one message on standard
// error.
platform::Image makeIcon(const ApplicationDescription &application);
platform::Image genericIcon();

} // namespace brimshade::desktop
