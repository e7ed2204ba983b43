#include "PointerArrow.h"

#include <QPainterPath>

namespace brimshade::desktop {

PointerArrow::PointerArrow(QQuickItem *parent) : DrawnItem(parent)
{
    setSize({13, 19});
}

QRectF PointerArrow::pictureRect() const
{
    constexpr double room = 4; // for the outline and the shadow
    return boundingRect().adjusted(-room, -room, room, room);
}

void PointerArrow::draw(QPainter &painter, double) const
{
    QPainterPath arrow(QPointF(0, 0));
    for (const QPointF &corner : {QPointF(0, 16.2), QPointF(3.7, 12.8), QPointF(6.1, 18.3), QPointF(8.7, 17.2),
                                  QPointF(6.4, 11.8), QPointF(11.4, 11.4)})
        arrow.lineTo(corner);
    arrow.closeSubpath();
    for (const double width : {4.5, 3.5, 2.5}) // a soft edge below
        painter.strokePath(arrow.translated(0, 1),
                           QPen(QColor(0, 0, 0, 26), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.strokePath(arrow, QPen(Qt::white, 2.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(arrow, Qt::black);
}

} // namespace brimshade::desktop
