#pragma once
#include "ItemClient.h"
#include "Program.h"
#include "desktop/core/ApplicationSpec.h"
#include "desktop/services/DesktopEntry.h"

namespace brimshade::desktop::tray {

// One item of a program as its application shows it.
struct HostedItem {
    QString instance; // unique among all items, for as long as it is there
    QString path; // unique among the items of one connection of its program
    TrayItem item;
    ItemPictures pictures;
    ItemHandler handler;
    ItemScroller scroller = {};
    bool canBeActivated = false;
};

// What is known about a program besides its items.
struct HostedProgram {
    FoundProgram found;
    platform::Image icon; // the entry's; null when there is none
};

// The name that people know it by: the desktop entry's, else that of the first item that has one.
QString applicationName(const HostedProgram &program, const std::vector<HostedItem> &items);

// Describes a process with these items, in order of arrival, as an application of the desktop. Its icon is the desktop
// entry's, else that of the first item that has one. An extra's identifier is the item's id or, if that is missing or
// taken, its path; it keeps its place by its program and the item's id.
ApplicationSpec describeApplication(int pid, const HostedProgram &program, const std::vector<HostedItem> &items);

} // namespace brimshade::desktop::tray
