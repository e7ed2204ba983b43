#pragma once
#include <QString>

namespace brimshade::platform {

// Tells a person something even when none of the program's windows is open. Main thread.
class UserNotifications {
public:
    virtual ~UserNotifications() = default;
    virtual void add(const QString &title, const QString &body) = 0; // shown for some seconds; returns at once
};

} // namespace brimshade::platform
