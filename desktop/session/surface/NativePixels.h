#pragma once
#include <QRect>
#include <QRegion>

class QScreen;

namespace brimshade::desktop::session {

// Between points and the display server's own unit: pixels on X11, the compositor's points on Wayland. Differ where Qt
// scales (Xft.dpi, QT_SCALE_FACTOR). Rounded outwards, so that no part of the area is lost.
QRect toNative(const QRect &points, const QScreen *screen); // relative to the screen's corner in both
QRegion toNative(const QRegion &points, const QScreen *screen);
QSize fromNative(const QSize &native, const QScreen *screen);

QRect nativeGeometry(const QScreen *screen); // among all screens

} // namespace brimshade::desktop::session
