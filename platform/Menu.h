#pragma once
#include "Dispatch.h"
#include "Geometry.h"

#include <QPointF>
#include <QString>
#include <optional>
#include <vector>

namespace brimshade::platform {

struct MenuItem {
    QString title;
    QString keyEquivalent; // with Command; empty for none
    QString shortcut = {}; // shown in its place: the keys, in readable form, that do the same without the menu
    bool isEnabled = true;
    bool isSeparator = false;
    Work action;

    static MenuItem separator()
    {
        MenuItem item;
        item.isSeparator = true;
        return item;
    }
};

// Built anew for each opening; a plain value.
struct Menu {
    std::vector<MenuItem> items;
};

// Main thread.
class Menus {
public:
    virtual ~Menus() = default;
    // Opens a context menu with its corner at a point of screen space, or at the pointer. Returns at once; dismissed
    // runs when the menu is gone, after the action of the entry that was chosen. An open menu of this program is
    // dismissed first.
    virtual void popUpContextMenu(const Menu &menu, std::optional<QPointF> at, Work dismissed) = 0;
};

} // namespace brimshade::platform
