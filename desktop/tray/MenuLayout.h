#pragma once
#include "desktop/core/MenuSource.h"

#include <QSet>
#include <functional>

namespace brimshade::desktop::tray {

struct MenuLimits {
    int depth = 12; // of nested menus
    int entries = 2000; // in the whole tree
    QSet<int> taken; // ids of the tree that the children go into; they count as entries
};

struct MenuLayout {
    std::vector<MenuEntry> entries;
    bool isCut = false; // a limit was reached; what fitted is there
};

using PictureByName = std::function<platform::Image(const QString &iconName)>;

// The children of a layout node, given as plain (id, properties, children). Entries that are invisible, or have neither
// text nor picture, are left out, as are separators with nothing to separate and repeated ids.
MenuLayout parseLayout(const QVariant &node, const PictureByName &picture, const MenuLimits &limits = {});

// "_Open __x" is shown as "Open _x".
QString withoutMnemonic(const QString &label);

const MenuEntry *findMenuEntry(const std::vector<MenuEntry> &entries, int id);
MenuEntry *findMenuEntry(std::vector<MenuEntry> &entries, int id);
QSet<int> idsOf(const std::vector<MenuEntry> &entries);
int depthOf(const std::vector<MenuEntry> &entries, int id); // 1 at the top, 0 if the menu has no such entry
bool looksTheSame(const std::vector<MenuEntry> &a, const std::vector<MenuEntry> &b);

} // namespace brimshade::desktop::tray
