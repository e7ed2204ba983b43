#pragma once
#include "desktop/core/Lifetime.h"
#include "platform/Dispatch.h"

namespace brimshade::desktop::tray {

// Reads something again after a burst of change signals: a moment after the first one, one read at a time, and once
// more when a signal came during the read. Main thread.
class Refresh {
public:
    // fetch starts a read that ends in finished(); nothing of it runs after the Refresh is gone.
    Refresh(platform::Dispatch &dispatch, platform::Work fetch);

    void request(); // after 10 ms
    void requestNow();
    void finished();

private:
    enum class State { idle, waiting, reading, readingStale };
    void fetchIfWaiting();

    platform::Dispatch &m_dispatch;
    platform::Work m_fetch;
    State m_state = State::idle;
    Lifetime m_lifetime;
};

} // namespace brimshade::desktop::tray
