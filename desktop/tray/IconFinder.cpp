#include "IconFinder.h"

#include "desktop/core/PixelImage.h"

#include <QFile>
#include <QPainter>

namespace brimshade::desktop::tray {

namespace {

constexpr int kMostIndices = 16;
constexpr int kMostKnown = 4096;
constexpr double kOldIndex = 2, kOldThemes = 60; // seconds after which it is read again for a missing name
constexpr double kTrustMissing = 10; // seconds before a name that was not found is looked for again
constexpr QSizeF kItemSize{22, 22};

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

IconFinder::IconFinder(IconThemePlaces places, Clock now)
    : m_places(std::move(places)), m_now(std::move(now)), m_indices(kMostIndices)
{
}

platform::Image IconFinder::find(const QString &name, const QString &themePath)
{
    const auto picture = findPicture(name, themePath);
    return imageOf(picture, picture.size(), isSymbolic(name));
}

ItemPictures IconFinder::itemPictures(const TrayItem &item)
{
    auto picture = resolve(item.shownIcon(), item.iconThemePath);
    const bool isTemplate = isSymbolic(item.shownIcon().name);
    const auto overlay = resolve(item.overlayIcon, item.iconThemePath);
    addOverlay(picture, overlay);
    return {imageOf(picture, kItemSize, isTemplate), imageOf(overlay, kItemSize)};
}

QImage IconFinder::resolve(const ItemIcon &icon, const QString &themePath)
{
    const auto picture = findPicture(icon.name, themePath);
    return picture.isNull() ? icon.pixmap : picture;
}

QImage IconFinder::findPicture(const QString &name, const QString &themePath)
{
    if (name.startsWith(u'/'))
        return m_pictures.read(name);
    if (name.isEmpty() || name.contains(u'/'))
        return {};
    return m_pictures.read(knownPath(name, themePath));
}

QString IconFinder::knownPath(const QString &name, const QString &themePath)
{
    // Programs that draw their own icons put new ones directly into this folder.
    if (const auto *index = m_indices.object(themePath)) {
        if (auto path = index->findNew(name); !path.isEmpty())
            return path;
    }
    if (m_known.size() > kMostKnown)
        m_known.clear();
    auto &known = m_known[{themePath, name}];
    const bool isGood = known.path.isEmpty() ? known.at > m_now() - kTrustMissing : QFile::exists(known.path);
    if (known.at == 0 || !isGood)
        known = {lookUp(name, themePath), m_now()};
    return known.path;
}

// A name that is not found is cut at its hyphens: "network-wired-offline" is at least a network.
QString IconFinder::lookUp(const QString &name, const QString &themePath)
{
    if (auto path = inThemePath(name, themePath); !path.isEmpty())
        return path;
    auto path = inThemes(name);
    for (auto end = name.lastIndexOf(u'-'); path.isEmpty() && end > 0; end = name.lastIndexOf(u'-', end - 1))
        path = isSymbolic(name) ? QString() : inThemes(name.first(end));
    return path;
}

QString IconFinder::inThemePath(const QString &name, const QString &themePath)
{
    if (!themePath.startsWith(u'/'))
        return {};
    const auto *index = m_indices.object(themePath);
    if (auto path = index ? index->find(name) : QString(); !path.isEmpty() && QFile::exists(path))
        return path;
    if (!index || index->age(m_now()) > kOldIndex) {
        m_indices.insert(themePath, new PictureIndex(PictureIndex::below(themePath, m_now())));
        index = m_indices.object(themePath);
    }
    return index->find(name);
}

QString IconFinder::inThemes(const QString &name)
{
    auto path = m_themes ? m_themes->find(name) : QString();
    if (!m_themes || (path.isEmpty() && m_themes->age(m_now()) > kOldThemes)) {
        m_themes = PictureIndex::inside(iconFolders(m_places), m_now());
        path = m_themes->find(name);
    }
    return path;
}

} // namespace brimshade::desktop::tray
