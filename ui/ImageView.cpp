#include "ImageView.h"
#include "Blur.h"

#include <QDataStream>
#include <QIODevice>
#include <cmath>

namespace brimshade::ui {

namespace {

constexpr double kGlowReach = 3; // deviations: beyond it nothing is left to see

} // namespace

ImageView::ImageView(QQuickItem *parent) : DrawnItem(parent)
{
    connect(this, &ImageView::imageChanged, this, &QQuickItem::update);
    connect(this, &ImageView::lookChanged, this, &QQuickItem::update);
}

void ImageView::setImage(const QVariant &value)
{
    const auto image = value.value<platform::Image>();
    if (m_image == image)
        return;
    m_image = image;
    setImplicitSize(image.size().width(), image.size().height());
    Q_EMIT imageChanged();
}

QByteArray ImageView::pictureKey() const
{
    if (m_image.isNull())
        return {};
    QByteArray key("image");
    QDataStream out(&key, QIODevice::Append);
    out << quint64(quintptr(m_image.identity().get())) << m_image.isTemplate() << m_templateColor << m_glowRadius
        << m_glowColor;
    return key;
}

QRectF ImageView::pictureRect() const
{
    const double reach = std::ceil(kGlowReach * m_glowRadius);
    return boundingRect().adjusted(-reach, -reach, reach, reach);
}

QImage ImageView::scaledImage(double scale) const
{
    const QSize pixels = (QSizeF(width(), height()) * scale).toSize().expandedTo({1, 1});
    const QImage best = m_image.bitmap();
    // A bitmap much larger than what is shown loses lines if it is sampled: average it down.
    if (best.width() > pixels.width() && best.height() > pixels.height())
        return best.convertToFormat(QImage::Format_ARGB32_Premultiplied)
            .scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QImage drawn(pixels, QImage::Format_ARGB32_Premultiplied);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(pixels.width() / width(), pixels.height() / height()); // what is drawn has sizes in points
    m_image.draw(painter, boundingRect());
    return drawn;
}

void ImageView::draw(QPainter &painter, double scale) const
{
    QImage scaled = scaledImage(scale);
    if (m_image.isTemplate()) {
        QPainter tint(&scaled);
        tint.setCompositionMode(QPainter::CompositionMode_SourceIn);
        tint.fillRect(scaled.rect(), m_templateColor);
    }
    if (m_glowRadius <= 0) {
        painter.drawImage(boundingRect(), scaled);
        return;
    }
    const QRectF rect = pictureRect();
    QImage roomy((rect.size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    roomy.fill(Qt::transparent);
    QPainter placing(&roomy);
    placing.drawImage(QPointF(-rect.x() * scale, -rect.y() * scale), scaled);
    placing.end();
    painter.drawImage(rect, blurredSilhouette(roomy, m_glowColor, m_glowRadius * scale));
}

} // namespace brimshade::ui
