#include "Line.h"

#include <QDataStream>
#include <QIODevice>
#include <QQuickWindow>
#include <cmath>

namespace brimshade::ui {

Line::Line(QQuickItem *parent) : DrawnItem(parent)
{
    setSmooth(false);
    connect(this, &Line::changed, this, &QQuickItem::update);
}

QRectF Line::pictureRect() const
{
    const double scale = window() ? window()->effectiveDevicePixelRatio() : 1;
    const auto whole = [scale](double length) { return std::ceil(length * scale) / scale; };
    return {0, 0, whole(width()), whole(height())};
}

QByteArray Line::pictureKey() const
{
    if (m_color.alpha() == 0)
        return {};
    QByteArray key("line");
    QDataStream(&key, QIODevice::Append) << width() << height() << m_color;
    return key;
}

void Line::draw(QPainter &painter, double) const
{
    painter.fillRect(boundingRect(), m_color);
}

} // namespace brimshade::ui
