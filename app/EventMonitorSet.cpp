#include "EventMonitorSet.h"

#include <utility>

namespace brimshade::app {

void EventMonitorSet::addGlobal(platform::EventMask mask, std::function<void(const platform::Event &)> handler)
{
    keep(m_application.addGlobalMonitor(mask, std::move(handler)));
}

void EventMonitorSet::addLocal(platform::EventMask mask,
                               std::function<std::optional<platform::Event>(const platform::Event &)> handler)
{
    keep(m_application.addLocalMonitor(mask, std::move(handler)));
}

void EventMonitorSet::removeAll()
{
    for (const platform::MonitorToken token : std::exchange(m_tokens, {}))
        m_application.removeMonitor(token);
}

void EventMonitorSet::keep(platform::MonitorToken token)
{
    if (token != 0)
        m_tokens.push_back(token);
}

} // namespace brimshade::app
