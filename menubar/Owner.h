#pragma once
#include "MenuBarAccess.h"
#include "platform/Workspace.h"

namespace brimshade::menubar {

// The application that a scan reads.
struct MenuBarAccess::Owner {
    const platform::RunningApplication &application;
    bool isSystemAgent;
    QString idPrefix; // of its items: "812-"
    std::optional<QString> outerBundle; // of an application that lies in another one's bundle
};

} // namespace brimshade::menubar
