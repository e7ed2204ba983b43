#pragma once
#include <QAnimationDriver>

namespace brimshade::desktop {

class VirtualDispatch;

// Animations of this thread follow a virtual clock while this exists; one at a time in a thread. Frames are asked of
// the clock only while an animation runs.
class AnimationClock : public QAnimationDriver {
    Q_OBJECT
public:
    explicit AnimationClock(VirtualDispatch &clock);
    ~AnimationClock() override;

    qint64 elapsed() const override; // milliseconds since the driver started
    void catchUp(); // brings running animations to the present instant, which may lie between two frames

protected:
    void start() override;

private:
    VirtualDispatch &m_clock;
    double m_startTime = 0;
};

} // namespace brimshade::desktop
