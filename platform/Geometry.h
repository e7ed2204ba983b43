#pragma once
// Lengths are points, held in double precision. Two coordinate spaces exist, both global:
//   screen space    origin bottom left of the primary screen, y up: windows, screens, mouseLocation
//   display space   origin top left of the primary screen, y down: item frames, synthetic events
// x is the same in both. A QRectF in screen space has its *lower* edge at y().
#include <QPointF>
#include <QRectF>
#include <QSizeF>

namespace brimshade::platform {

inline double minX(const QRectF &r)
{
    return r.x();
}
inline double minY(const QRectF &r)
{
    return r.y();
}
inline double maxX(const QRectF &r)
{
    return r.x() + r.width();
}
inline double maxY(const QRectF &r)
{
    return r.y() + r.height();
}
inline double midX(const QRectF &r)
{
    return r.x() + r.width() / 2;
}
inline double midY(const QRectF &r)
{
    return r.y() + r.height() / 2;
}

// The Mac's rule: the lower edges belong to the rectangle, the upper ones do not.
inline bool containsPoint(const QRectF &r, QPointF p)
{
    return p.x() >= minX(r) && p.x() < maxX(r) && p.y() >= minY(r) && p.y() < maxY(r);
}

// Converts between the two spaces, in either direction; primaryHeight is the primary screen's height.
inline QRectF flipped(const QRectF &r, double primaryHeight)
{
    return {r.x(), primaryHeight - maxY(r), r.width(), r.height()};
}
inline QPointF flipped(QPointF p, double primaryHeight)
{
    return {p.x(), primaryHeight - p.y()};
}

} // namespace brimshade::platform
