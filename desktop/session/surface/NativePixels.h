#pragma once
#include <QRect>
#include <QRegion>

class QScreen;

namespace brimshade::desktop::session {

// Converts points to the display server's unit: pixels on X11, the compositor's points on Wayland. They differ if Qt
// scales (Xft.dpi, QT_SCALE_FACTOR). Rounds outwards, so that no part of the area is lost.
QRect toNative(const QRect &points, const QScreen *screen); // relative to the screen's corner in both
QRegion toNative(const QRegion &points, const QScreen *screen);
QSize fromNative(const QSize &native, const QScreen *screen);

QRect nativeGeometry(const QScreen *screen); // among all screens

} // namespace brimshade::desktop::session
