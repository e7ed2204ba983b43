#pragma once
#include <QAnimationDriver>

namespace brimshade::desktop {

class VirtualDispatch;

// While this exists, this thread's animations follow a virtual clock; only one at a time per thread. It requests frames
// from the clock only while an animation runs.
class AnimationClock : public QAnimationDriver {
    Q_OBJECT
public:
    explicit AnimationClock(VirtualDispatch &clock);
    ~AnimationClock() override;

    qint64 elapsed() const override; // milliseconds since the driver started
    void catchUp(); // advances running animations to the present, which may lie between two frames

protected:
    void start() override;

private:
    VirtualDispatch &m_clock;
    double m_startTime = 0;
};

} // namespace brimshade::desktop
