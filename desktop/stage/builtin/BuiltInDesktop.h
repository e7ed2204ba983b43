#pragma once
#include "desktop/core/DesktopDescription.h"

namespace brimshade::desktop {

// The desktop that is used when no file describes another: a notched display and enough applications that some of
// their items end behind the notch and off-screen.
DesktopDescription builtInDesktop();

} // namespace brimshade::desktop
