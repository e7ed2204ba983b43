#include "PictureFiles.h"

#include <QFileInfo>
#include <QImageReader>

namespace brimshade::desktop::tray {

namespace {

constexpr int kPixels = 128; // for a picture without a size of its own
constexpr int kLargestEdge = 1024;
constexpr qint64 kMostPictureBytes = 4 << 20;
constexpr int kMostKilobytes = 8192;

QImage decode(const QFileInfo &file)
{
    QImageReader reader(file.filePath());
    auto size = reader.size();
    if (isVectorPicture(file.filePath())) {
        size = size.isEmpty() ? QSize(kPixels, kPixels) : size.scaled(kPixels, kPixels, Qt::KeepAspectRatio);
        reader.setScaledSize(size);
    }
    if (size.isEmpty() || size.width() > kLargestEdge || size.height() > kLargestEdge)
        return {};
    return reader.read();
}

} // namespace

bool isVectorPicture(const QString &path)
{
    return path.endsWith(u".svg", Qt::CaseInsensitive) || path.endsWith(u".svgz", Qt::CaseInsensitive);
}

bool isSettled(const QDateTime &modified, const QDateTime &looked)
{
    constexpr int coarsest = 2; // seconds; the coarsest resolution of a file system's times
    return modified.secsTo(looked) > coarsest;
}

PictureFiles::PictureFiles() : m_known(kMostKilobytes) { }

QImage PictureFiles::read(const QString &path)
{
    const QFileInfo file(path);
    if (!file.isFile() || file.size() > kMostPictureBytes) // no pipe either: reading one could block for ever
        return {};
    const auto modified = file.lastModified();
    if (const auto *known = m_known.object(path); known && known->modified == modified && known->size == file.size())
        return known->image;
    auto image = decode(file);
    m_known.remove(path);
    if (isSettled(modified, QDateTime::currentDateTime()))
        m_known.insert(path, new Picture{image, modified, file.size()},
                       1 + static_cast<int>(image.sizeInBytes() >> 10));
    return image;
}

} // namespace brimshade::desktop::tray
