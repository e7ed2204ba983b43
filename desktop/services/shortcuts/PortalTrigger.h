#pragma once
#include "desktop/services/GlobalKeyGrabber.h"

#include <QString>

namespace brimshade::desktop {

// A combination of keys as the portal reads it, "CTRL+ALT+space"; empty for a key code that no key has.
QString portalTrigger(HotkeyCombination combination);

} // namespace brimshade::desktop
