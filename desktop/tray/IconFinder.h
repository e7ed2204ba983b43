#pragma once
#include "TrayItem.h"
#include "platform/Image.h"

namespace brimshade::desktop::tray {

// Pictures by name: in the folder that a program brings along, in the user's icon theme, where programs install their
// own icons, or at an absolute path. Main thread; the pictures may be drawn on any. Only regular files are opened, and
// none larger than a picture of an icon can be. Copies are cheap.
class IconFinder {
public:
    IconFinder(); // looks once for the folders that programs install icons in

    // Null when there is none. themePath may be the root of a theme, a bare folder, or empty. A name ending in
    // "-symbolic" gives a template.
    platform::Image find(const QString &name, const QString &themePath) const;

    // The picture of an item as its program wants it to look now, 22 × 22 points; null when it has none.
    platform::Image itemImage(const TrayItem &item) const;

private:
    QImage findPicture(const QString &name, const QString &themePath) const;
    QImage resolve(const ItemIcon &icon, const QString &themePath) const;

    QStringList m_installed; // best first
};

platform::Image imageOf(const QImage &pixels, QSizeF size, bool isTemplate = false);

} // namespace brimshade::desktop::tray
