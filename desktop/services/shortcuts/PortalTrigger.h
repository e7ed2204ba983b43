#pragma once
#include "desktop/services/GlobalKeyGrabber.h"

#include <QString>

namespace brimshade::desktop {

// A key combination in the portal's notation, "CTRL+ALT+space"; empty for a key code that no key has.
QString portalTrigger(HotkeyCombination combination);

} // namespace brimshade::desktop
