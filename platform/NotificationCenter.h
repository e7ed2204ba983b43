#pragma once
#include "Dispatch.h"

#include <QString>

namespace brimshade::platform {

inline constexpr auto kNSApplicationDidChangeScreenParametersNotification =
    "NSApplicationDidChangeScreenParametersNotification";
inline constexpr auto kNSWindowDidChangeScreenNotification = "NSWindowDidChangeScreenNotification";
inline constexpr auto kNSWorkspaceDidLaunchApplicationNotification = "NSWorkspaceDidLaunchApplicationNotification";
inline constexpr auto kNSWorkspaceDidTerminateApplicationNotification =
    "NSWorkspaceDidTerminateApplicationNotification";

// Main thread. Handlers run on the main thread, in the order they were added, and stay for the life of
// the centre; one that can outlive its owner holds it weakly.
class NotificationCenter {
public:
    virtual ~NotificationCenter() = default;
    // object: only notifications about this object; null for any.
    virtual void addObserver(const QString &name, const void *object, Work handler) = 0;
};

} // namespace brimshade::platform
