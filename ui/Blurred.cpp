#include "Blurred.h"
#include "Blur.h"

#include <QDataStream>
#include <QIODevice>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <algorithm>
#include <cmath>

namespace brimshade::ui {

namespace {

constexpr double kReach =
    2; // deviations: anything beyond is too faint to matter in something that fades at the same time
constexpr double kEnough = 3; // pixels of deviation: a wider blur is drawn smaller and enlarged

// reach and deviation: pixels of the picture.
QImage blurredPicture(const QImage &picture, double reach, double deviation)
{
    const double share = std::min(1.0, kEnough / deviation);
    const QSizeF whole = QSizeF(picture.size()) + QSizeF(2 * reach, 2 * reach);
    QImage small((whole * share).toSize().expandedTo({1, 1}), QImage::Format_ARGB32_Premultiplied);
    small.fill(Qt::transparent);
    const QSize inner = (QSizeF(picture.size()) * share).toSize().expandedTo({1, 1});
    QPainter painter(&small);
    painter.drawImage(QPointF(small.width() - inner.width(), small.height() - inner.height()) / 2,
                      picture.scaled(inner, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    painter.end();
    return blurred(small, deviation * share);
}

} // namespace

Blurred::Blurred(QQuickItem *parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    connect(this, &Blurred::changed, this, &QQuickItem::update);
    connect(&m_pending, &PendingPicture::made, this, &QQuickItem::update);
}

void Blurred::setSource(DrawnItem *source)
{
    if (m_source == source)
        return;
    m_source = source;
    Q_EMIT changed();
}

double Blurred::reach() const
{
    return std::ceil(kReach * m_radius);
}

QSGNode *Blurred::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    auto *image = static_cast<QSGImageNode *>(node);
    const QImage shown = m_source && isVisible() ? picture(window()->effectiveDevicePixelRatio()) : QImage();
    if (shown.isNull()) {
        delete image;
        return nullptr;
    }
    if (!image) {
        image = window()->createImageNode();
        image->setOwnsTexture(true);
        image->setFiltering(QSGTexture::Linear);
    }
    image->setTexture(window()->createTextureFromImage(shown, QQuickWindow::TextureCanUseAtlas));
    const double r = reach();
    image->setRect(m_source->pictureRect().adjusted(-r, -r, r, r));
    return image;
}

QImage Blurred::picture(double scale)
{
    const QByteArray sourceKey = m_source->pictureName();
    if (sourceKey.isEmpty())
        return {};
    QByteArray key("blurred" + sourceKey);
    QDataStream(&key, QIODevice::Append) << m_radius;
    PictureCache *cache = PictureCache::of(window());
    if (const QImage *known = cache->find(key))
        return *known;
    const auto make = [picture = m_source->picture(sourceKey), reach = reach() * scale, radius = m_radius * scale] {
        return blurredPicture(picture, reach, radius);
    };
    return m_pending.picture(*cache, key, make, m_source->pictureOwner());
}

void Blurred::itemChange(ItemChange change, const ItemChangeData &data)
{
    if (change == ItemVisibleHasChanged || change == ItemDevicePixelRatioHasChanged)
        update();
    QQuickItem::itemChange(change, data);
}

} // namespace brimshade::ui
