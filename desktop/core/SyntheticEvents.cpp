#include "SyntheticEvents.h"
#include "InputRouter.h"

namespace brimshade::desktop {

void SyntheticEvents::post(const platform::CGMouseEvent &event)
{
    m_state.write([&](DisplayState &state) {
        state.pointer = event.location;
        record(state.events, {event, m_dispatch.now()});
    });
    m_dispatch.mainAsync(m_lifetime.guard([this, event] { m_router.synthetic(event); }));
}

void SyntheticEvents::warpMouseCursorPosition(QPointF location)
{
    m_state.write([&](DisplayState &state) { state.pointer = location; });
    m_dispatch.mainAsync(m_lifetime.guard([this] { Q_EMIT m_router.pointerWarped(); }));
}

} // namespace brimshade::desktop
