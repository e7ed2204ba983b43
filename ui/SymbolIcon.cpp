#include "SymbolIcon.h"
#include "ui/symbols/SymbolTable.h"

#include <QDataStream>
#include <QIODevice>
#include <QLinearGradient>
#include <algorithm>
#include <cmath>

namespace brimshade::ui {

SymbolIcon::SymbolIcon(QQuickItem *parent) : DrawnItem(parent)
{
    connect(this, &SymbolIcon::changed, this, &QQuickItem::update);
    setPointSize(13);
}

void SymbolIcon::setPointSize(double pointSize)
{
    if (m_pointSize == pointSize || !(pointSize > 0))
        return;
    m_pointSize = pointSize;
    const double side = std::ceil(symbolExtent(pointSize));
    setImplicitSize(side, side);
    Q_EMIT changed();
}

QByteArray SymbolIcon::pictureKey() const
{
    if (m_name.isEmpty() || m_color.alpha() == 0)
        return {};
    QByteArray key("symbol");
    QDataStream out(&key, QIODevice::Append);
    out << m_name << m_pointSize << int(m_weight) << m_color << m_endColor.isValid() << m_endColor;
    return key;
}

// Centred in the item, whatever its size.
QRectF SymbolIcon::pictureRect() const
{
    const double side = std::ceil(symbolExtent(m_pointSize));
    return {std::floor((width() - side) / 2), std::floor((height() - side) / 2), side, side};
}

QBrush SymbolIcon::brush(const QRectF &rect) const
{
    if (!m_endColor.isValid())
        return m_color;
    QLinearGradient gradient(rect.topLeft(), rect.bottomRight());
    gradient.setColorAt(0, m_color);
    gradient.setColorAt(1, m_endColor);
    return gradient;
}

void SymbolIcon::draw(QPainter &painter, double scale) const
{
    const QRectF rect = pictureRect();
    QImage mask((rect.size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    mask.fill(Qt::transparent);
    const double inset = (rect.width() - symbolExtent(m_pointSize)) / 2;
    QPainter masking(&mask);
    masking.scale(scale, scale);
    masking.translate(inset, inset);
    paintSymbol(masking, symbolOutline(m_name), {m_pointSize, platform::SymbolWeight(m_weight)}, Qt::white);
    masking.setCompositionMode(QPainter::CompositionMode_SourceIn);
    masking.translate(-inset, -inset);
    masking.fillRect(QRectF(QPointF(), rect.size()), brush(QRectF(QPointF(), rect.size())));
    masking.end();
    painter.drawImage(rect, mask);
}

} // namespace brimshade::ui
