#include "NinePatchItem.h"
#include "NinePatchNode.h"

#include <QDataStream>
#include <QIODevice>
#include <QQuickWindow>
#include <cmath>

namespace brimshade::ui {

QSGNode *NinePatchItem::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    auto *patch = static_cast<NinePatchNode *>(node);
    QByteArray key = pictureKey();
    if (!cache() || key.isEmpty() || width() <= 0 || height() <= 0) {
        delete patch;
        m_shownKey.clear();
        return nullptr;
    }
    const double scale = window()->effectiveDevicePixelRatio();
    QDataStream(&key, QIODevice::Append) << scale;
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
QRectF NinePatchItem::target(double scale) const
{
    const double r = reach();
    const QRectF scene = mapRectToScene(boundingRect().adjusted(-r, -r, r, r));
    const QPointF origin = mapToScene({0, 0});
    const auto snapped = [scale](double place) { return std::round(place * scale) / scale; };
    const QPointF topLeft(snapped(scene.left()), snapped(scene.top()));
    const QPointF bottomRight(snapped(scene.right()), snapped(scene.bottom()));
    return {topLeft - origin, bottomRight - origin};
}

QImage NinePatchItem::picture(const QByteArray &key, double scale) const
{
    if (const QImage *known = cache()->find(key))
        return *known;
    QImage drawn = draw(2 * int(std::round(border() * scale)) + 2, scale);
    cache()->insert(key, drawn);
    return drawn;
}

} // namespace brimshade::ui
