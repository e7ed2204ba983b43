#include "IconFinder.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QIcon>
#include <QImageReader>
#include <QPainter>
#include <QStandardPaths>

namespace brimshade::desktop::tray {

namespace {

constexpr int kPixels = 128; // of a picture that has no size of its own
constexpr int kLargestEdge = 1024;
constexpr qint64 kMostPictureBytes = 4 << 20;
constexpr int kMostFolderEntries = 4096;
constexpr QSizeF kItemSize{22, 22};

class PixelSource : public platform::ImageSource {
public:
    explicit PixelSource(QImage pixels) : m_pixels(std::move(pixels)) { }

    void draw(QPainter &painter, const QRectF &rect) const override
    {
        painter.save();
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(rect, m_pixels);
        painter.restore();
    }
    QImage bitmap() const override { return m_pixels; }

private:
    QImage m_pixels;
};

bool isVector(const QString &suffix)
{
    return suffix == u"svg" || suffix == u"svgz";
}

QImage readPicture(const QString &path)
{
    const QFileInfo file(path);
    if (!file.isFile() || file.size() > kMostPictureBytes) // not a pipe either: reading one could wait for ever
        return {};
    QImageReader reader(path);
    auto size = reader.size();
    if (isVector(file.suffix().toLower())) {
        size = size.isEmpty() ? QSize(kPixels, kPixels) : size.scaled(kPixels, kPixels, Qt::KeepAspectRatio);
        reader.setScaledSize(size);
    }
    if (size.isEmpty() || size.width() > kLargestEdge || size.height() > kLargestEdge)
        return {};
    return reader.read();
}

// Of several sizes the drawn one wins, then the largest file.
bool isBetter(const QFileInfo &candidate, const QFileInfo &than)
{
    if (than.filePath().isEmpty() || isVector(candidate.suffix()) != isVector(than.suffix()))
        return than.filePath().isEmpty() || isVector(candidate.suffix());
    return candidate.size() > than.size();
}

QString fileInFolder(const QString &folder, const QString &name)
{
    if (!folder.startsWith(u'/'))
        return {};
    QDirIterator files(folder,
                       {name + QStringLiteral(".png"), name + QStringLiteral(".svg"), name + QStringLiteral(".svgz"),
                        name + QStringLiteral(".xpm")},
                       QDir::Files, QDirIterator::Subdirectories);
    QFileInfo best;
    for (int i = 0; i < kMostFolderEntries && files.hasNext(); ++i) {
        files.next();
        if (isBetter(files.fileInfo(), best))
            best = files.fileInfo();
    }
    return best.filePath();
}

// The theme that programs install their icons in, whichever one the user chose. Qt finds it on some platforms only.
QStringList installedFolders()
{
    QStringList folders;
    const auto themes = QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, QStringLiteral("icons/hicolor"),
                                                  QStandardPaths::LocateDirectory);
    for (const auto *size :
         {"scalable", "128x128", "256x256", "64x64", "48x48", "32x32", "24x24", "22x22", "16x16", "symbolic"}) {
        for (const auto &theme : themes) {
            const QDir folder(theme + u'/' + QString::fromLatin1(size));
            for (const auto &context : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
                folders.append(folder.filePath(context));
        }
    }
    return folders
        + QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, QStringLiteral("pixmaps"),
                                    QStandardPaths::LocateDirectory);
}

QString fileInFolders(const QStringList &folders, const QString &name)
{
    for (const auto &folder : folders) {
        for (const auto *suffix : {".svg", ".png", ".svgz", ".xpm"}) {
            auto path = folder + u'/' + name + QString::fromLatin1(suffix);
            if (QFileInfo::exists(path))
                return path;
        }
    }
    return {};
}

bool isSymbolic(const QString &name)
{
    return name.endsWith(u"-symbolic");
}

void addOverlay(QImage &picture, const QImage &overlay)
{
    if (picture.isNull() || overlay.isNull())
        return;
    picture = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(
        QRectF(picture.width() / 2.0, picture.height() / 2.0, picture.width() / 2.0, picture.height() / 2.0), overlay);
}

} // namespace

platform::Image imageOf(const QImage &pixels, QSizeF size, bool isTemplate)
{
    if (pixels.isNull())
        return {};
    return {std::make_shared<PixelSource>(pixels), size, isTemplate};
}

IconFinder::IconFinder() : m_installed(installedFolders()) { }

QImage IconFinder::findPicture(const QString &name, const QString &themePath) const
{
    if (name.startsWith(u'/'))
        return readPicture(name);
    if (name.isEmpty() || name.contains(u'/'))
        return {};
    if (auto picture = readPicture(fileInFolder(themePath, name)); !picture.isNull())
        return picture;
    if (const auto icon = QIcon::fromTheme(name); !icon.isNull())
        return icon.pixmap(QSize(kPixels, kPixels), 1.0).toImage();
    return readPicture(fileInFolders(m_installed, name));
}

platform::Image IconFinder::find(const QString &name, const QString &themePath) const
{
    const auto picture = findPicture(name, themePath);
    return imageOf(picture, picture.size(), isSymbolic(name));
}

platform::Image IconFinder::itemImage(const TrayItem &item) const
{
    auto picture = resolve(item.shownIcon(), item.iconThemePath);
    const bool isTemplate = isSymbolic(item.shownIcon().name);
    addOverlay(picture, resolve(item.overlayIcon, item.iconThemePath));
    return imageOf(picture, kItemSize, isTemplate);
}

QImage IconFinder::resolve(const ItemIcon &icon, const QString &themePath) const
{
    const auto picture = findPicture(icon.name, themePath);
    return picture.isNull() ? icon.pixmap : picture;
}

} // namespace brimshade::desktop::tray
