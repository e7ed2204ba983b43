#pragma once
#include "Image.h"
#include "NotificationCenter.h"

#include <QString>
#include <optional>
#include <vector>

namespace brimshade::platform {

// A running application as the workspace lists it. Absent fields are absent on the system's side too.
struct RunningApplication {
    int processIdentifier = 0;
    std::optional<QString> bundleIdentifier;
    std::optional<QString> bundlePath; // the file-system path of its bundle URL
    std::optional<QString> localizedName;
    Image icon; // may be null
};

// The queries may be called on any thread, the rest on the main thread.
class Workspace {
public:
    virtual ~Workspace() = default;

    virtual std::vector<RunningApplication> runningApplications() const = 0;
    virtual int processIdentifier() const = 0; // of this process
    virtual std::optional<QString> bundleIdentifier() const = 0; // of this application
    virtual QString displayNameAtPath(const QString &path) const = 0; // NSFileManager's
    virtual Image iconForFile(const QString &path) const = 0;

    virtual bool openURL(const QString &url) = 0;
    // Launches and quits are posted here, once the application is in or out of runningApplications().
    virtual NotificationCenter &notificationCenter() = 0;
};

} // namespace brimshade::platform
