#include "FrostedWallpaper.h"
#include "Wallpaper.h"
#include "ui/Blur.h"
#include "ui/Squircle.h"

#include <QDataStream>
#include <QIODevice>
#include <QQuickWindow>
#include <QSGImageNode>

namespace brimshade::desktop {

namespace {

constexpr double kDeviation = 18; // points
constexpr double kGrain = 6; // points per pixel while it is blurred, when it has no detail

// Beyond its edges the picture is treated as continuing, since there is nothing there to average with.
QImage blurredWallpaper(const QSizeF &whole)
{
    QImage small((whole / kGrain).toSize().expandedTo({1, 1}), QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&small);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(small.width() / whole.width(), small.height() / whole.height());
    paintWallpaper(painter, whole);
    painter.end();
    const QImage::Format unweighted = QImage::Format_ARGB32;
    return ui::blurred(small, kDeviation / kGrain).convertToFormat(unweighted).convertToFormat(QImage::Format_RGB32);
}

// part: the part of the wallpaper, in points.
QImage frosted(const QSizeF &whole, const QRectF &part, double radius, double scale)
{
    const QImage blurred = blurredWallpaper(whole);
    QImage picture((part.size() * scale).toSize().expandedTo({1, 1}), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QBrush brush(blurred);
    QTransform toPart = QTransform::fromTranslate(-part.x(), -part.y());
    toPart.scale(whole.width() / blurred.width(), whole.height() / blurred.height());
    brush.setTransform(toPart);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(picture.width() / part.width(), picture.height() / part.height());
    painter.fillPath(ui::roundedRectangle(QRectF({}, part.size()), radius, true), brush);
    return picture;
}

} // namespace

FrostedWallpaper::FrostedWallpaper(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    connect(this, &FrostedWallpaper::changed, this, &QQuickItem::update);
    connect(&m_pending, &ui::PendingPicture::made, this, &QQuickItem::update);
}

QSGNode *FrostedWallpaper::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    auto *image = static_cast<QSGImageNode *>(node);
    const QImage shown = size().isEmpty() || m_whole.isEmpty() ? QImage() : picture();
    if (shown.isNull()) {
        delete image;
        return nullptr;
    }
    if (!image) {
        image = window()->createImageNode();
        image->setOwnsTexture(true);
        image->setFiltering(QSGTexture::Linear);
    }
    image->setTexture(window()->createTextureFromImage(shown));
    image->setRect(boundingRect());
    return image;
}

QImage FrostedWallpaper::picture()
{
    const double scale = window()->effectiveDevicePixelRatio();
    const QRectF part(m_origin, size());
    QByteArray key("frosted wallpaper");
    QDataStream out(&key, QIODevice::Append);
    out << m_whole << part << m_radius << scale;
    const auto make = [whole = m_whole, part, radius = m_radius, scale] { return frosted(whole, part, radius, scale); };
    return m_pending.picture(*ui::PictureCache::of(window()), key, make);
}

void FrostedWallpaper::itemChange(ItemChange change, const ItemChangeData &data)
{
    if (change == ItemVisibleHasChanged || change == ItemDevicePixelRatioHasChanged)
        update();
    QQuickItem::itemChange(change, data);
}

void FrostedWallpaper::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    update();
}

} // namespace brimshade::desktop
