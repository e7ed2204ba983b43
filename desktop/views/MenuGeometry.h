#pragma once
#include "MenuMetrics.h"
#include "desktop/core/MenuSource.h"

#include <QRectF>
#include <QSizeF>

// How large a menu is and where it goes. Pure functions except for font metrics; points, display space.
namespace brimshade::desktop {

// Columns within a row, from its left edge. A column that no entry uses has no width.
struct MenuColumns {
    double text = MenuMetrics::textInset;
    double icon = MenuMetrics::textInset; // left edge of the icons
    double toggle = 0; // width
    double shortcut = 0; // width, right-aligned before the arrows
};

MenuColumns menuColumns(const std::vector<MenuEntry> &entries);
double menuRowHeight(const MenuEntry &entry);
QSizeF menuSize(const std::vector<MenuEntry> &entries); // the whole menu, however tall

// Under the anchor, or with its corner at an empty anchor's point; moved, and as a last resort cut, to fit on the
// screen.
QRectF placeMenu(const QRectF &anchor, const QSizeF &size, const QRectF &screen);
// Right of the row that opens it, else left of it; its first row is level with that row if the screen allows it.
QRectF placeSubmenu(const QRectF &row, const QSizeF &size, const QRectF &screen);

} // namespace brimshade::desktop
