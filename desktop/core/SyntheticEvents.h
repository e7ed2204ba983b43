#pragma once
#include "Lifetime.h"
#include "SharedState.h"

namespace brimshade::desktop {

class InputRouter;

// Events that the program makes. Any thread: the pointer moves at once, the event's effect follows on the main
// queue, in the order of posting.
class SyntheticEvents : public platform::EventServices {
public:
    SyntheticEvents(platform::Dispatch &dispatch, SharedState &state, InputRouter &router)
        : m_dispatch(dispatch), m_state(state), m_router(router)
    {
    }

    void post(const platform::CGMouseEvent &event) override;
    std::optional<QPointF> pointerLocation() const override { return m_state.pointer(); }
    void warpMouseCursorPosition(QPointF location) override;

private:
    platform::Dispatch &m_dispatch;
    SharedState &m_state;
    InputRouter &m_router;
    Lifetime m_lifetime;
};

} // namespace brimshade::desktop
