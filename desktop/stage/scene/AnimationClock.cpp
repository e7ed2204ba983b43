#include "AnimationClock.h"
#include "desktop/time/VirtualDispatch.h"

namespace brimshade::desktop {

AnimationClock::AnimationClock(VirtualDispatch &clock) : m_clock(clock)
{
    install();
    m_clock.setFrames([this] { return isRunning(); }, [this] { advance(); });
}

AnimationClock::~AnimationClock()
{
    m_clock.setFrames({}, {});
    uninstall();
}

qint64 AnimationClock::elapsed() const
{
    constexpr double half = 0.0005; // the nearest millisecond: a sixtieth is none
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
