#include "ProgramApplication.h"
#include "SharedState.h"
#include "WindowStack.h"

namespace brimshade::desktop {

void ProgramApplication::activate()
{
    m_windows.activate();
}

QPointF ProgramApplication::mouseLocation() const
{
    return platform::flipped(m_state.pointer(), m_state.primaryHeight());
}

platform::MonitorToken ProgramApplication::addGlobalMonitor(platform::EventMask mask, EventMonitors::Global handler)
{
    return m_monitors.add(mask, std::move(handler));
}

platform::MonitorToken ProgramApplication::addLocalMonitor(platform::EventMask mask, EventMonitors::Local handler)
{
    return m_monitors.add(mask, std::move(handler));
}

} // namespace brimshade::desktop
