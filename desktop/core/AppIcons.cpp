#include "AppIcons.h"
#include "PixelImage.h"

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QImageReader>
#include <QPainter>
#include <QPainterPath>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

constexpr int kSize = 128; // in points and in pixels; tiles show it smaller
constexpr QSizeF kPoints{kSize, kSize};

QImage roundedSquare(const QColor &color, const QString &text)
{
    QImage image(kSize, kSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient light(0, 0, 0, kSize);
    light.setColorAt(0, color.lighter(118));
    light.setColorAt(1, color.darker(108));
    const QRectF square(6, 6, kSize - 12, kSize - 12);
    QPainterPath path;
    path.addRoundedRect(square, 27, 27);
    painter.fillPath(path, light);
    QFont font(u"Inter"_s);
    font.setPixelSize(66);
    font.setWeight(QFont::DemiBold);
    painter.setFont(font);
    painter.setPen(color.lightnessF() > 0.72 ? QColor(0x20, 0x24, 0x2c) : Qt::white);
    painter.drawText(square, Qt::AlignCenter, text);
    return image;
}

// A vector picture is drawn at our size, a larger bitmap brought down to it.
QImage readSquare(const QString &path)
{
    QImageReader reader(path);
    const QSize size = reader.size();
    if (reader.format().startsWith("svg") || size.width() > kSize || size.height() > kSize)
        reader.setScaledSize(size.scaled(kSize, kSize, Qt::KeepAspectRatio));
    QImage picture = reader.read();
    if (picture.isNull() || picture.width() == picture.height())
        return picture;
    const int side = std::max(picture.width(), picture.height());
    QImage square(side, side, QImage::Format_ARGB32_Premultiplied);
    square.fill(Qt::transparent);
    QPainter(&square).drawImage((side - picture.width()) / 2, (side - picture.height()) / 2, picture);
    return square;
}

QString initialOf(const ApplicationDescription &application)
{
    const QString name = application.name.value_or(application.bundleIdentifier.value_or(QString())).trimmed();
    return name.isEmpty() ? QString() : name.left(name.at(0).isHighSurrogate() ? 2 : 1).toUpper();
}

QImage pictureOf(const QString &icon, const ApplicationDescription &application)
{
    if (icon.startsWith(u'#'))
        return QColor::isValidColorName(icon) ? roundedSquare(QColor(icon), initialOf(application)) : QImage();
    if (icon.contains(u'/'))
        return readSquare(icon);
    return QIcon::fromTheme(icon).pixmap(kSize, kSize).toImage();
}

} // namespace

platform::Image genericIcon()
{
    return imageOf(roundedSquare(QColor(0xb4, 0xb9, 0xc2), {}), kPoints);
}

platform::Image makeIcon(const ApplicationDescription &application)
{
    if (!application.icon)
        return {};
    auto image = imageOf(pictureOf(*application.icon, application), kPoints);
    if (!image.isNull())
        return image;
    qWarning().noquote() << u"application %1: no picture can be read from \"%2\""_s.arg(application.pid)
                                .arg(application.icon->left(200));
    return genericIcon();
}

} // namespace brimshade::desktop
