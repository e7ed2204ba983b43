#include "PictureFiles.h"

#include <QFileInfo>
#include <QImageReader>

namespace brimshade::desktop::tray {

namespace {

constexpr int kPixels = 128; // of a picture that has no size of its own
constexpr int kLargestEdge = 1024;
constexpr qint64 kMostPictureBytes = 4 << 20;
constexpr int kMostKilobytes = 8192;
constexpr int kUnsettledSeconds = 2; // in which a file may be written twice and look the same

QImage readPicture(const QFileInfo &file)
{
    QImageReader reader(file.filePath());
    auto size = reader.size();
    if (isVectorPicture(file.suffix().toLower())) {
        size = size.isEmpty() ? QSize(kPixels, kPixels) : size.scaled(kPixels, kPixels, Qt::KeepAspectRatio);
        reader.setScaledSize(size);
    }
    if (size.isEmpty() || size.width() > kLargestEdge || size.height() > kLargestEdge)
        return {};
    return reader.read();
}

} // namespace

bool isVectorPicture(const QString &suffix)
{
    return suffix == u"svg" || suffix == u"svgz";
}

PictureFiles::PictureFiles() : m_known(kMostKilobytes) { }

QImage PictureFiles::read(const QString &path)
{
    const QFileInfo file(path);
    if (!file.isFile() || file.size() > kMostPictureBytes) // not a pipe either: reading one could wait for ever
        return {};
    const auto modified = file.lastModified();
    if (const auto *known = m_known.object(path); known && known->modified == modified && known->size == file.size())
        return known->image;
    auto image = readPicture(file);
    m_known.remove(path);
    if (modified.secsTo(QDateTime::currentDateTime()) > kUnsettledSeconds)
        m_known.insert(path, new Picture{image, modified, file.size()},
                       1 + static_cast<int>(image.sizeInBytes() >> 10));
    return image;
}

} // namespace brimshade::desktop::tray
