#pragma once
#include <QImage>
#include <QStringList>
#include <QVariant>

namespace brimshade::desktop::tray {

// The largest edge, in pixels, of any picture that a program may send.
inline constexpr int kLargestPixmapEdge = 512;

// The largest sound picture of an IconPixmap value, a plain a(iiay): width, height and ARGB pixels, big-endian,
// straight alpha. Null when there is none; each unsound one adds a complaint. Nothing is allocated before the sizes
// agree.
QImage largestPixmap(const QVariant &pixmaps, QStringList &complaints);

// A PNG that came as bytes; null where it is not one, or larger than a pixmap may be.
QImage decodePng(const QByteArray &bytes);

} // namespace brimshade::desktop::tray
