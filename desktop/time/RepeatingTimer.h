#pragma once
#include "Nanoseconds.h"
#include "platform/Dispatch.h"

#include <functional>
#include <memory>

namespace brimshade::desktop {

// What a repeating timer needs of its dispatch. Main thread; used only while the dispatch lives.
struct TimerClock {
    std::function<Nanoseconds()> now;
    std::function<void(Nanoseconds due, platform::Work work)> schedule;
};

// Ticks at whole intervals from its start; ticks missed by a busy main thread are skipped.
class RepeatingTimer : public platform::Timer {
public:
    RepeatingTimer(TimerClock clock, double seconds, platform::Work tick);
    ~RepeatingTimer() override;
    void invalidate() override;

private:
    struct State;
    static void arm(const std::shared_ptr<State> &state);
    static void fire(const std::shared_ptr<State> &state);

    std::shared_ptr<State> m_state; // shared with the scheduled tick
};

} // namespace brimshade::desktop
