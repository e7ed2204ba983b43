#pragma once
#include <QImage>
#include <QStringList>
#include <QVariant>

namespace brimshade::desktop::tray {

// The largest edge, in pixels, of any picture that a program may send.
inline constexpr int kLargestPixmapEdge = 512;

// The largest valid picture of an IconPixmap value, a plain a(iiay): width, height and ARGB pixels, big-endian,
// straight alpha. Null if there is none; each invalid one adds a complaint. Nothing is allocated before the sizes are
// checked.
QImage largestPixmap(const QVariant &pixmaps, QStringList &complaints);

// Decodes a PNG; null if the bytes are not one, or if it is larger than a pixmap may be.
QImage decodePng(const QByteArray &bytes);

} // namespace brimshade::desktop::tray
