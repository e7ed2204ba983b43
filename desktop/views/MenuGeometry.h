#pragma once
#include "desktop/core/MenuSource.h"

#include <QRectF>
#include <QSizeF>

// How large a menu is and where it goes. Pure but for the font's measures; points, display space.
namespace brimshade::desktop {

inline constexpr double kMenuPadding = 5; // above the first row and below the last
inline constexpr double kMenuRowHeight = 22;
inline constexpr double kMenuSeparatorHeight = 11;
inline constexpr double kMenuTextSize = 13;
inline constexpr double kMenuIconSize = 16;

// Columns within a row, from its left edge. A column that no entry uses has no width.
struct MenuColumns {
    double text = 10;
    double icon = 10; // left edge of the icons
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
