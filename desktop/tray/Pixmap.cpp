#include "Pixmap.h"

#include "WireValue.h"

#include <QBuffer>
#include <QImageReader>
#include <QtEndian>
#include <optional>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::tray {

namespace {

constexpr int kMostPixmaps = 32;
constexpr int kMostPngBytes = 1 << 20;

struct WirePixmap {
    qint64 width = 0, height = 0;
    QByteArray bytes;

    bool isSound() const
    {
        return width > 0 && height > 0 && width <= kLargestPixmapEdge && height <= kLargestPixmapEdge
            && bytes.size() == 4 * width * height;
    }
};

std::optional<WirePixmap> readPixmap(const QVariant &value)
{
    const auto fields = listOf(value);
    if (fields.size() != 3 || fields[2].typeId() != QMetaType::QByteArray)
        return {};
    const auto width = integerOf(fields[0]), height = integerOf(fields[1]);
    if (!width || !height)
        return {};
    return WirePixmap{*width, *height, fields[2].toByteArray()};
}

QImage toImage(const WirePixmap &pixmap)
{
    QImage image(static_cast<int>(pixmap.width), static_cast<int>(pixmap.height), QImage::Format_ARGB32);
    if (!image.isNull()) // 32-bit rows are contiguous
        qFromBigEndian<quint32>(pixmap.bytes.constData(), pixmap.width * pixmap.height, image.bits());
    return image;
}

} // namespace

QImage largestPixmap(const QVariant &pixmaps, QStringList &complaints)
{
    std::optional<WirePixmap> best;
    for (const auto &value : listOf(pixmaps).mid(0, kMostPixmaps)) {
        auto pixmap = readPixmap(value);
        if (!pixmap || !pixmap->isSound()) {
            complaints.append(pixmap ? u"a pixmap said to be %1 × %2 has %3 bytes"_s.arg(pixmap->width)
                                           .arg(pixmap->height)
                                           .arg(pixmap->bytes.size())
                                     : u"a pixmap is not (width, height, bytes)"_s);
        } else if (!best || pixmap->width > best->width) {
            best = std::move(pixmap);
        }
    }
    return best ? toImage(*best) : QImage();
}

QImage decodePng(const QByteArray &bytes)
{
    if (bytes.isEmpty() || bytes.size() > kMostPngBytes)
        return {};
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "png");
    const auto size = reader.size();
    if (size.isEmpty() || size.width() > kLargestPixmapEdge || size.height() > kLargestPixmapEdge)
        return {};
    return reader.read();
}

} // namespace brimshade::desktop::tray
