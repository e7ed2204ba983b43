#pragma once
#include <QPoint>
#include <QPointF>

namespace brimshade::desktop {

// A global point of the toolkit's in the units in which the session's programs exchange points: pixels on X11,
// the compositor's own points on Wayland. Main thread.
QPoint nativePoint(QPointF global);

} // namespace brimshade::desktop
