#include "EventMonitors.h"

#include <algorithm>

namespace brimshade::desktop {

platform::MonitorToken EventMonitors::add(platform::EventMask mask, Global handler)
{
    m_monitors.push_back({++m_latest, mask, std::move(handler), {}});
    return m_latest;
}

platform::MonitorToken EventMonitors::add(platform::EventMask mask, Local handler)
{
    m_monitors.push_back({++m_latest, mask, {}, std::move(handler)});
    return m_latest;
}

void EventMonitors::remove(platform::MonitorToken token)
{
    std::erase_if(m_monitors, [token](const Monitor &monitor) { return monitor.token == token; });
}

bool EventMonitors::isInstalled(platform::MonitorToken token) const
{
    return std::ranges::any_of(m_monitors, [token](const Monitor &monitor) { return monitor.token == token; });
}

// A copy: handlers add and remove monitors.
std::vector<EventMonitors::Monitor> EventMonitors::matching(platform::NSEventType type) const
{
    std::vector<Monitor> matching;
    std::ranges::copy_if(m_monitors, std::back_inserter(matching),
                         [type](const Monitor &monitor) { return monitor.mask & (platform::EventMask(1) << type); });
    return matching;
}

void EventMonitors::tellGlobal(const platform::Event &event) const
{
    for (const Monitor &monitor : matching(event.type)) {
        if (monitor.global && isInstalled(monitor.token))
            monitor.global(event);
    }
}

std::optional<platform::Event> EventMonitors::passLocal(platform::Event event) const
{
    for (const Monitor &monitor : matching(event.type)) {
        if (!monitor.local || !isInstalled(monitor.token))
            continue;
        auto passed = monitor.local(event);
        if (!passed)
            return std::nullopt;
        event = std::move(*passed);
    }
    return event;
}

} // namespace brimshade::desktop
