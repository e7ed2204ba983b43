#pragma once
#include "MenuMetrics.h"
#include "desktop/core/MenuSource.h"

#include <QRectF>
#include <QSizeF>

// How large a menu is and where it goes. Pure but for the font's measures; points, display space.
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
QSizeF menuSize(const std::vector<MenuEntry> &entries); // whole, however high

// Under the anchor, or with its corner at the point of an empty one; moved and at last cut to lie on the screen.
QRectF placeMenu(const QRectF &anchor, const QSizeF &size, const QRectF &screen);
// Right of the row that opens it, else left of it; its first row level with that row where the screen allows.
QRectF placeSubmenu(const QRectF &row, const QSizeF &size, const QRectF &screen);

} // namespace brimshade::desktop
