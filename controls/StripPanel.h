#pragma once
#include "platform/Window.h"

namespace brimshade::controls {

using namespace Qt::StringLiterals;

// The panel that holds the hover view: over the menu bar on every space, and never in the way.
inline platform::WindowAttributes stripPanelAttributes(const QRectF &frame)
{
    platform::WindowAttributes strip;
    strip.name = u"strip"_s;
    strip.contentRect = frame;
    strip.styleMask = platform::kStyleNonactivatingPanel;
    strip.level = platform::kStatusWindowLevel;
    strip.collectionBehavior =
        platform::kCanJoinAllSpaces | platform::kStationary | platform::kIgnoresCycle | platform::kFullScreenAuxiliary;
    strip.isPanel = true;
    strip.isOpaque = false;
    strip.hasShadow = false;
    strip.canBecomeKey = false;
    strip.constrainsFrame = false;
    return strip;
}

} // namespace brimshade::controls
