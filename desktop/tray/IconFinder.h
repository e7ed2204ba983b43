#pragma once
#include "IconTheme.h"
#include "PictureFiles.h"
#include "PictureIndex.h"
#include "TrayItem.h"
#include "platform/Image.h"

#include <functional>
#include <optional>

namespace brimshade::desktop::tray {

struct ItemPictures {
    platform::Image whole; // null when it has none
    platform::Image overlay; // null for none
};

// Finds pictures by name: in the folder that a program brings along, in the user's icon theme, where programs install
// their own icons, or at an absolute path. It reads folders and files, so it runs off the main thread, on one thread at
// a time. The pictures may be drawn on any thread.
class IconFinder {
public:
    using Clock = std::function<double()>; // seconds

    IconFinder(IconThemePlaces places, Clock now);

    // Null if there is none. themePath may be the root of a theme, a plain folder, or empty. A name ending in
    // "-symbolic" gives a template.
    platform::Image find(const QString &name, const QString &themePath);

    // An item's picture as its program wants it to look now, 22 × 22 points, and the overlay that is part of it.
    ItemPictures itemPictures(const TrayItem &item);

private:
    struct Found {
        QString path; // empty: not found
        double at = 0;
    };
    QImage findPicture(const QString &name, const QString &themePath);
    QImage resolve(const ItemIcon &icon, const QString &themePath);
    QString knownPath(const QString &name, const QString &themePath);
    QString lookUp(const QString &name, const QString &themePath);
    QString inThemePath(const QString &name, const QString &themePath);
    QString inThemes(const QString &name);

    const IconThemePlaces m_places;
    const Clock m_now;
    PictureFiles m_pictures;
    QCache<QString, PictureIndex> m_indices; // by theme path
    QHash<std::pair<QString, QString>, Found> m_known; // by theme path and name
    std::optional<PictureIndex> m_themes;
};

} // namespace brimshade::desktop::tray
