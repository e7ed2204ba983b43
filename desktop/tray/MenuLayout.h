#pragma once
#include "desktop/core/MenuSource.h"

#include <QSet>
#include <functional>

namespace brimshade::desktop::tray {

struct MenuLimits {
    int depth = 12; // menus inside menus
    int entries = 2000; // in the whole tree
    QSet<int> taken; // ids of the tree that the children go into; they count as entries
};

struct MenuLayout {
    std::vector<MenuEntry> entries;
    bool isCut = false; // a limit was met; what fitted is there
};

using PictureByName = std::function<platform::Image(const QString &iconName)>;

// The children of a layout node, plain (id, properties, children). Entries that are invisible, or have neither a text
// nor a picture, are left out, and so are separators with nothing to separate and ids met before.
MenuLayout parseLayout(const QVariant &node, const PictureByName &picture, const MenuLimits &limits = {});

// "_Open __x" is shown as "Open _x".
QString withoutMnemonic(const QString &label);

const MenuEntry *findMenuEntry(const std::vector<MenuEntry> &entries, int id);
MenuEntry *findMenuEntry(std::vector<MenuEntry> &entries, int id);
QSet<int> idsOf(const std::vector<MenuEntry> &entries);
int depthOf(const std::vector<MenuEntry> &entries, int id); // 1 at the top, 0 where the menu has no such entry
bool looksTheSame(const std::vector<MenuEntry> &a, const std::vector<MenuEntry> &b);

} // namespace brimshade::desktop::tray
