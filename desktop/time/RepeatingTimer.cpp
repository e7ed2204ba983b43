#include "RepeatingTimer.h"

namespace brimshade::desktop {

struct RepeatingTimer::State {
    TimerClock clock;
    Nanoseconds interval;
    platform::Work tick;
    Nanoseconds due;
    bool isValid = true;
};

namespace {

// The Mac treats an interval of 0 as 0.1 ms.
constexpr Nanoseconds kShortestInterval = kSecond / 10'000;

} // namespace

RepeatingTimer::RepeatingTimer(TimerClock clock, double seconds, platform::Work tick)
{
    const Nanoseconds interval = std::max(toNanoseconds(seconds), kShortestInterval);
    const Nanoseconds due = clock.now() + interval;
    m_state = std::make_shared<State>(std::move(clock), interval, std::move(tick), due);
    arm(m_state);
}

RepeatingTimer::~RepeatingTimer()
{
    m_state->isValid = false;
}

void RepeatingTimer::invalidate()
{
    m_state->isValid = false;
}

void RepeatingTimer::arm(const std::shared_ptr<State> &state)
{
    state->clock.schedule(state->due, [state] { fire(state); });
}

void RepeatingTimer::fire(const std::shared_ptr<State> &state)
{
    if (!state->isValid)
        return;
    state->tick();
    if (!state->isValid)
        return;
    const Nanoseconds late = std::max<Nanoseconds>(state->clock.now() - state->due, 0);
    state->due += state->interval * (1 + late / state->interval);
    arm(state);
}

} // namespace brimshade::desktop
