#include "EventMonitors.h"

#include <utility>

namespace brimshade::app {

void EventMonitors::addGlobal(platform::EventMask mask, std::function<void(const platform::Event &)> handler)
{
    keep(m_application.addGlobalMonitor(mask, std::move(handler)));
}

void EventMonitors::addLocal(platform::EventMask mask,
                             std::function<std::optional<platform::Event>(const platform::Event &)> handler)
{
    keep(m_application.addLocalMonitor(mask, std::move(handler)));
}

void EventMonitors::removeAll()
{
    for (const platform::MonitorToken token : std::exchange(m_tokens, {}))
        m_application.removeMonitor(token);
}

void EventMonitors::keep(platform::MonitorToken token)
{
    if (token != 0)
        m_tokens.push_back(token);
}

} // namespace brimshade::app
