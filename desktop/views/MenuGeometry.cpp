#include "MenuGeometry.h"

#include <QFont>
#include <QFontMetricsF>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

constexpr double kToggleWidth = 16;
constexpr double kIconGap = 7;
constexpr double kShortcutGap = 28;
constexpr double kArrowWidth = 18;
constexpr double kNarrowest = 120;
constexpr double kWidest = 520;
constexpr double kScreenMargin = 6;
constexpr double kSubmenuOverlap = 3;

QFontMetricsF metrics()
{
    QFont font(u"Inter"_s);
    font.setPixelSize(int(MenuMetrics::textSize));
    return QFontMetricsF(font);
}

double clampedStart(double start, double length, double from, double to)
{
    return std::max(std::min(start, to - length), from);
}

} // namespace

MenuColumns menuColumns(const std::vector<MenuEntry> &entries)
{
    MenuColumns columns;
    const auto uses = [&](auto what) { return std::any_of(entries.begin(), entries.end(), what); };
    if (uses([](const MenuEntry &each) { return each.toggle != MenuEntry::Toggle::none; }))
        columns.toggle = kToggleWidth;
    columns.icon = MenuMetrics::textInset + columns.toggle;
    const bool hasIcons = uses([](const MenuEntry &each) { return !each.icon.isNull(); });
    columns.text = columns.icon + (hasIcons ? MenuMetrics::iconSize + kIconGap : 0);
    const QFontMetricsF font = metrics();
    for (const MenuEntry &each : entries)
        columns.shortcut = std::max(columns.shortcut, font.horizontalAdvance(each.shortcut));
    return columns;
}

double menuRowHeight(const MenuEntry &entry)
{
    return entry.isSeparator ? MenuMetrics::separatorHeight : MenuMetrics::rowHeight;
}

QSizeF menuSize(const std::vector<MenuEntry> &entries)
{
    const QFontMetricsF font = metrics();
    const MenuColumns columns = menuColumns(entries);
    double text = 0;
    double height = 2 * MenuMetrics::padding;
    bool hasSubmenus = false;
    for (const MenuEntry &each : entries) {
        text = std::max(text, font.horizontalAdvance(each.title));
        height += menuRowHeight(each);
        hasSubmenus = hasSubmenus || each.hasSubmenu;
    }
    const double right = columns.shortcut > 0 ? kShortcutGap + columns.shortcut : hasSubmenus ? kArrowWidth : 0;
    const double width = 2 * MenuMetrics::sideInset + columns.text + text + right + MenuMetrics::textInset;
    return {std::ceil(std::clamp(width, kNarrowest, kWidest)), height};
}

QRectF placeMenu(const QRectF &anchor, const QSizeF &size, const QRectF &screen)
{
    const double lowest = screen.bottom() - kScreenMargin;
    const double x =
        clampedStart(anchor.x(), size.width(), screen.left() + kScreenMargin, screen.right() - kScreenMargin);
    // A menu of the bar does not cover it and scrolls if need be; a menu at a point moves up until it fits.
    const double y = anchor.isEmpty() ? clampedStart(anchor.y(), size.height(), screen.top() + kScreenMargin, lowest)
                                      : std::max(anchor.bottom(), screen.top());
    return {x, y, size.width(), std::min(size.height(), lowest - y)};
}

QRectF placeSubmenu(const QRectF &row, const QSizeF &size, const QRectF &screen)
{
    const bool fitsRight = row.right() - kSubmenuOverlap + size.width() <= screen.right() - kScreenMargin;
    const double x = fitsRight ? row.right() - kSubmenuOverlap : row.left() + kSubmenuOverlap - size.width();
    const double top = screen.top() + kScreenMargin;
    const double lowest = screen.bottom() - kScreenMargin;
    const double y = clampedStart(row.y() - MenuMetrics::padding, size.height(), top, lowest);
    return {std::max(x, screen.left() + kScreenMargin), y, size.width(), std::min(size.height(), lowest - y)};
}

} // namespace brimshade::desktop
