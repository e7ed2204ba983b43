#pragma once
#include "DesktopEntry.h"
#include "ItemClient.h"
#include "desktop/core/ApplicationSpec.h"

namespace brimshade::desktop::tray {

// One item of a program as its application shows it.
struct HostedItem {
    ItemKey key;
    TrayItem item;
    platform::Image image;
    ItemHandler handler;
};

// What people know it by: the desktop entry's name, else that of the first item that has one.
QString applicationName(const std::optional<DesktopEntry> &entry, const std::vector<HostedItem> &items);

// The application that a process with these items, in the order in which they came, is on the desktop. Its icon is the
// desktop entry's, else that of the first item that has one. An extra is identified by the item's id, or where that is
// missing or taken by the object path.
ApplicationSpec describeApplication(int pid, const std::optional<DesktopEntry> &entry,
                                    const std::vector<HostedItem> &items, const IconFinder &icons);

} // namespace brimshade::desktop::tray
