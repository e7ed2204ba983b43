#include "RoundedShape.h"
#include "Blur.h"
#include "Squircle.h"

#include <QDataStream>
#include <QIODevice>
#include <cmath>

namespace brimshade::ui {

RoundedShape::RoundedShape(QQuickItem *parent) : DrawnItem(parent)
{
    connect(this, &RoundedShape::changed, this, &QQuickItem::update);
}

QByteArray RoundedShape::pictureKey() const
{
    const bool hasStroke = m_strokeWidth > 0 && m_strokeColor.alpha() > 0;
    if (m_color.alpha() == 0 && m_gradient == NoGradient && !hasStroke)
        return {};
    QByteArray key("rounded");
    QDataStream out(&key, QIODevice::Append);
    out << m_radius << m_continuous << m_color << m_strokeColor << m_strokeWidth << int(m_gradient) << m_endColor
        << m_center << m_startRadius << m_endRadius;
    return key;
}

QRectF RoundedShape::pictureRect() const
{
    const double reach = std::ceil(3 * m_glowRadius);
    return boundingRect().adjusted(-reach, -reach, reach, reach);
}

QBrush RoundedShape::brush() const
{
    const QRectF rect = boundingRect();
    QGradient gradient;
    switch (m_gradient) {
    case NoGradient:
        return m_color;
    case Vertical:
        gradient = QLinearGradient(rect.topLeft(), rect.bottomLeft());
        break;
    case Diagonal:
        gradient = QLinearGradient(rect.topLeft(), rect.bottomRight());
        break;
    case Radial:
        gradient = QRadialGradient(QPointF(m_center.x() * rect.width(), m_center.y() * rect.height()), m_endRadius);
        gradient.setColorAt(m_endRadius > 0 ? m_startRadius / m_endRadius : 0, m_color);
        break;
    }
    gradient.setColorAt(0, m_color);
    gradient.setColorAt(1, m_endColor);
    return gradient;
}

void RoundedShape::drawGlow(QPainter &painter, const QPainterPath &outline, double scale) const
{
    const QRectF rect = pictureRect();
    QImage caster((rect.size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    caster.fill(Qt::transparent);
    QPainter casting(&caster);
    casting.setRenderHint(QPainter::Antialiasing);
    casting.scale(scale, scale);
    casting.translate(-rect.topLeft());
    casting.fillPath(outline, Qt::black);
    casting.end();
    painter.drawImage(rect, blurredSilhouette(caster, m_glowColor, m_glowRadius * scale));
}

void RoundedShape::draw(QPainter &painter, double scale) const
{
    const QPainterPath outline = roundedRectangle(boundingRect(), m_radius, m_continuous);
    if (m_glowRadius > 0)
        drawGlow(painter, outline, scale);
    painter.fillPath(outline, brush());
    if (m_strokeWidth <= 0 || m_strokeColor.alpha() == 0)
        return;
    const double w = m_strokeWidth;
    const QRectF inner = boundingRect().adjusted(w, w, -w, -w);
    painter.fillPath(outline.subtracted(roundedRectangle(inner, m_radius - w, m_continuous)), m_strokeColor);
}

} // namespace brimshade::ui
