#pragma once
#include "platform/Application.h"

#include <vector>

namespace brimshade::desktop {

// The program's event monitors, called in the order they were added. One that is removed while an event is being
// delivered no longer gets it. Main thread.
class EventMonitors {
public:
    using Global = std::function<void(const platform::Event &)>;
    using Local = std::function<std::optional<platform::Event>(const platform::Event &)>;

    platform::MonitorToken add(platform::EventMask mask, Global handler);
    platform::MonitorToken add(platform::EventMask mask, Local handler);
    void remove(platform::MonitorToken token);

    void tellGlobal(const platform::Event &event) const;
    std::optional<platform::Event> passLocal(platform::Event event) const; // nothing if a monitor took it

private:
    struct Monitor {
        platform::MonitorToken token;
        platform::EventMask mask;
        Global global; // one of the two
        Local local;
    };
    bool isInstalled(platform::MonitorToken token) const;
    std::vector<Monitor> matching(platform::NSEventType type) const;

    std::vector<Monitor> m_monitors;
    platform::MonitorToken m_latest = 0;
};

} // namespace brimshade::desktop
