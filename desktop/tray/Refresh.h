#pragma once
#include "desktop/core/Lifetime.h"
#include "platform/Dispatch.h"

#include <limits>

namespace brimshade::desktop::tray {

// Reads something again after a burst of change signals: a moment after the first one, one read at a time, and once
// more if a signal came during the read. A failed read is repeated, with growing pauses. Main thread.
class Refresh {
public:
    // fetch starts a read that ends in finished() or failed(); it is not called after the Refresh is gone.
    Refresh(platform::Dispatch &dispatch, platform::Work fetch);

    void request(); // after 10 ms or, within a second of the last read, at the next tenth of a second
    void requestNow();
    void finished();
    void failed();

private:
    enum class State { idle, waiting, pausing, reading, readingStale };
    void fetchAfter(double seconds, State meanwhile);
    void fetchNow();
    double delay() const;

    platform::Dispatch &m_dispatch;
    platform::Work m_fetch;
    State m_state = State::idle;
    int m_turn = 0; // of waiting; earlier turns are outdated
    double m_readAt = -std::numeric_limits<double>::infinity(); // when it was last read; Dispatch seconds
    double m_pause = 0; // seconds; 0 after a read that succeeded
    Lifetime m_lifetime;
};

} // namespace brimshade::desktop::tray
