#pragma once
#include "ItemClient.h"
#include "Program.h"
#include "desktop/core/ApplicationSpec.h"
#include "desktop/services/DesktopEntry.h"

namespace brimshade::desktop::tray {

// One item of a program as its application shows it.
struct HostedItem {
    QString instance; // this very item among all, as long as it is there
    QString path; // the same, among those of one connection of its program
    TrayItem item;
    ItemPictures pictures;
    ItemHandler handler;
    ItemScroller scroller = {};
    bool canBeActivated = false;
};

// What is known of a program besides its items.
struct HostedProgram {
    FoundProgram found;
    platform::Image icon; // the entry's; null when there is none
};

// What people know it by: the desktop entry's name, else that of the first item that has one.
QString applicationName(const HostedProgram &program, const std::vector<HostedItem> &items);

// The application that a process with these items, in the order in which they came, is on the desktop. Its icon is the
// desktop entry's, else that of the first item that has one. An extra is identified by the item's id, or where that is
// missing or taken by the path; its place is kept by the program and the item's id.
ApplicationSpec describeApplication(int pid, const HostedProgram &program, const std::vector<HostedItem> &items);

} // namespace brimshade::desktop::tray
