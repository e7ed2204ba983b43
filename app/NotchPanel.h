#pragma once
#include "platform/Window.h"

namespace brimshade::app {

using namespace Qt::StringLiterals;

inline constexpr QSizeF kPanelSize(1000, 720); // room for the largest grid; most of it stays transparent

// The window that the notch opens in: above the menu bar, on every space, and taking keys although it has no title.
inline platform::WindowAttributes notchPanelAttributes()
{
    platform::WindowAttributes panel;
    panel.name = u"panel"_s;
    panel.styleMask = platform::kStyleNonactivatingPanel;
    panel.level = platform::kStatusWindowLevel;
    panel.collectionBehavior =
        platform::kCanJoinAllSpaces | platform::kStationary | platform::kIgnoresCycle | platform::kFullScreenAuxiliary;
    panel.isPanel = true;
    panel.isOpaque = false;
    panel.hasShadow = false;
    panel.isMovable = false;
    panel.constrainsFrame = false;
    return panel;
}

} // namespace brimshade::app
