#include "DrawnItem.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <algorithm>
#include <cmath>

namespace brimshade::ui {

namespace {

QByteArray bytesOf(const QRectF &rect, double scale)
{
    const double values[] = {rect.x(), rect.y(), rect.width(), rect.height(), scale};
    return QByteArray(reinterpret_cast<const char *>(values), sizeof values);
}

} // namespace

DrawnItem::DrawnItem(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

QRectF DrawnItem::pictureRect() const
{
    return boundingRect();
}

QSGNode *DrawnItem::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    auto *image = static_cast<QSGImageNode *>(node);
    const QRectF rect = pictureRect();
    QByteArray key = pictureKey();
    if (rect.isEmpty() || key.isEmpty() || !m_cache) {
        delete image;
        m_shownKey.clear();
        m_shownOwner.reset();
        return nullptr;
    }
    key += bytesOf(rect, window()->effectiveDevicePixelRatio());
    if (!image) {
        image = window()->createImageNode();
        image->setOwnsTexture(true);
    }
    image->setFiltering(smooth() ? QSGTexture::Linear : QSGTexture::Nearest);
    if (key == m_shownKey)
        return image;
    image->setTexture(window()->createTextureFromImage(picture(rect, key), QQuickWindow::TextureCanUseAtlas));
    image->setRect(rect);
    m_shownKey = key;
    m_shownOwner = pictureOwner();
    return image;
}

QImage DrawnItem::picture(const QRectF &rect, const QByteArray &key) const
{
    if (const QImage *known = m_cache->find(key))
        return *known;
    constexpr int largest = 8192; // pixels a side
    const double scale = window()->effectiveDevicePixelRatio();
    QImage drawn(std::clamp(int(std::ceil(rect.width() * scale)), 1, largest),
                 std::clamp(int(std::ceil(rect.height() * scale)), 1, largest), QImage::Format_ARGB32_Premultiplied);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(drawn.width() / rect.width(), drawn.height() / rect.height());
    painter.translate(-rect.topLeft());
    draw(painter, scale);
    painter.end();
    m_cache->insert(key, drawn, pictureOwner());
    return drawn;
}

void DrawnItem::itemChange(ItemChange change, const ItemChangeData &data)
{
    if (change == ItemSceneChange)
        m_cache = data.window ? PictureCache::of(data.window) : nullptr;
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange)
        update();
    QQuickItem::itemChange(change, data);
}

void DrawnItem::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        update();
}

} // namespace brimshade::ui
