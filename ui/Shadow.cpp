#include "Shadow.h"
#include "Blur.h"
#include "Squircle.h"

#include <QDataStream>
#include <QIODevice>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace brimshade::ui {

Shadow::Shadow(QQuickItem *parent) : NinePatchItem(parent)
{
    connect(this, &Shadow::changed, this, &QQuickItem::update);
}

double Shadow::reach() const
{
    return std::ceil(3 * m_blur);
}

double Shadow::border() const
{
    return 2 * reach() + std::ceil(1.5 * m_radius);
}

QByteArray Shadow::pictureKey() const
{
    if (m_color.alpha() == 0)
        return {};
    QByteArray key("shadow");
    QDataStream(&key, QIODevice::Append) << m_radius << m_blur << m_color;
    return key;
}

QPainterPath Shadow::outline(const QRectF &rect, double scale) const
{
    return roundedRectangle(rect, m_radius * scale, true);
}

QImage Shadow::draw(int side, double scale) const
{
    // A wide blur has no detail: a smaller one, enlarged, is the same and costs a fraction.
    constexpr double enough = 6; // pixels of deviation
    const double share = std::min(1.0, enough / std::max(enough, m_blur * scale));
    const QSize drawn = QSize(side, side) * share;
    QImage caster(drawn, QImage::Format_ARGB32_Premultiplied);
    caster.fill(Qt::transparent);
    QPainter painter(&caster);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(double(drawn.width()) / side, double(drawn.height()) / side);
    const double r = reach() * scale;
    painter.fillPath(outline(QRectF(0, 0, side, side).adjusted(r, r, -r, -r), scale), Qt::black);
    painter.end();
    const QImage shadow = blurredSilhouette(caster, m_color, m_blur * scale * share);
    return share < 1 ? shadow.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation) : shadow;
}

} // namespace brimshade::ui
