#include "Shadow.h"
#include "Blur.h"
#include "NinePatchNode.h"
#include "Squircle.h"

#include <QDataStream>
#include <QIODevice>
#include <QPainter>
#include <QQuickWindow>
#include <algorithm>
#include <cmath>

namespace brimshade::ui {

Shadow::Shadow(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
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

QSGNode *Shadow::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    auto *patch = static_cast<NinePatchNode *>(node);
    if (!m_cache || m_color.alpha() == 0 || width() <= 0 || height() <= 0) {
        delete patch;
        m_shownKey.clear();
        return nullptr;
    }
    const double scale = window()->effectiveDevicePixelRatio();
    QByteArray key("shadow");
    QDataStream(&key, QIODevice::Append) << m_radius << m_blur << m_color << scale;
    if (!patch || key != m_shownKey) {
        if (!patch)
            patch = new NinePatchNode;
        const double pixels = std::round(border() * scale);
        patch->setPicture(window(), picture(key, scale), QMarginsF(pixels, pixels, pixels, pixels));
        m_shownKey = key;
    }
    patch->setTarget(target(scale), QMarginsF(border(), border(), border(), border()), scale);
    return patch;
}

// What it covers, its edges on device pixels.
QRectF Shadow::target(double scale) const
{
    const double r = reach();
    const QRectF scene = mapRectToScene(boundingRect().adjusted(-r, -r, r, r));
    const QPointF origin = mapToScene({0, 0});
    const auto snapped = [scale](double place) { return std::round(place * scale) / scale; };
    const QPointF topLeft(snapped(scene.left()), snapped(scene.top()));
    const QPointF bottomRight(snapped(scene.right()), snapped(scene.bottom()));
    return {topLeft - origin, bottomRight - origin};
}

QImage Shadow::picture(const QByteArray &key, double scale) const
{
    if (const QImage *known = m_cache->find(key))
        return *known;
    // A wide blur has no detail: a smaller one, enlarged, is the same and costs a fraction.
    constexpr double enough = 6; // pixels of deviation
    const int side = 2 * int(std::round(border() * scale)) + 2;
    const double share = std::min(1.0, enough / std::max(enough, m_blur * scale));
    const QSize drawn = QSize(side, side) * share;
    QImage caster(drawn, QImage::Format_ARGB32_Premultiplied);
    caster.fill(Qt::transparent);
    QPainter painter(&caster);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(double(drawn.width()) / side, double(drawn.height()) / side);
    const double r = reach() * scale;
    painter.fillPath(roundedRectangle(QRectF(0, 0, side, side).adjusted(r, r, -r, -r), m_radius * scale, true),
                     Qt::black);
    painter.end();
    QImage shadow = blurredSilhouette(caster, m_color, m_blur * scale * share);
    if (share < 1)
        shadow = shadow.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    m_cache->insert(key, shadow);
    return shadow;
}

void Shadow::itemChange(ItemChange change, const ItemChangeData &data)
{
    if (change == ItemSceneChange)
        m_cache = data.window ? PictureCache::of(data.window) : nullptr;
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange)
        update();
    QQuickItem::itemChange(change, data);
}

void Shadow::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        update();
}

} // namespace brimshade::ui
