#include "AnimationClock.h"
#include "desktop/time/VirtualDispatch.h"

namespace brimshade::desktop {

AnimationClock::AnimationClock(VirtualDispatch &clock) : m_clock(clock)
{
    install();
    // When a frame comes, all animations may have ended; advancing would then start the toolkit's clock for nothing.
    m_clock.setFrames([this] { return isRunning(); }, [this] { catchUp(); });
}

AnimationClock::~AnimationClock()
{
    m_clock.setFrames({}, {});
    uninstall();
}

qint64 AnimationClock::elapsed() const
{
    constexpr double half = 0.0005; // for rounding: a sixtieth of a second is not a whole number of milliseconds
    return static_cast<qint64>((m_clock.now() - m_startTime + half) * 1000);
}

void AnimationClock::catchUp()
{
    if (isRunning())
        advance();
}

void AnimationClock::start()
{
    m_startTime = m_clock.now();
    QAnimationDriver::start();
}

} // namespace brimshade::desktop
