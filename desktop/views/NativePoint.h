#pragma once
#include <QPoint>
#include <QPointF>

namespace brimshade::desktop {

// Converts one of the toolkit's global points into the units that the session's programs exchange: pixels on X11, the
// compositor's own points on Wayland. Main thread.
QPoint nativePoint(QPointF global);

} // namespace brimshade::desktop
