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

QRectF DrawnItem::pictureRect() const
{
    return boundingRect();
}

QSGNode *DrawnItem::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    auto *image = static_cast<QSGImageNode *>(node);
    const QByteArray name = pictureName();
    if (name.isEmpty()) {
        delete image;
        m_shownKey.clear();
        m_shownOwner.reset();
        return nullptr;
    }
    if (!image) {
        image = window()->createImageNode();
        image->setOwnsTexture(true);
    }
    image->setFiltering(smooth() ? QSGTexture::Linear : QSGTexture::Nearest);
    if (name == m_shownKey)
        return image;
    image->setTexture(window()->createTextureFromImage(picture(name), QQuickWindow::TextureCanUseAtlas));
    image->setRect(pictureRect());
    m_shownKey = name;
    m_shownOwner = pictureOwner();
    return image;
}

QByteArray DrawnItem::pictureName() const
{
    const QRectF rect = pictureRect();
    const QByteArray key = rect.isEmpty() || !cache() ? QByteArray() : pictureKey();
    return key.isEmpty() ? key : key + bytesOf(rect, window()->effectiveDevicePixelRatio());
}

QImage DrawnItem::picture(const QByteArray &name) const
{
    if (const QImage *known = cache()->find(name))
        return *known;
    const QRectF rect = pictureRect();
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
    cache()->insert(name, drawn, pictureOwner());
    return drawn;
}

} // namespace brimshade::ui
