#pragma once
#include "Spring.h"

#include <QAbstractAnimation>
#include <QObject>
#include <QQmlParserStatus>
#include <algorithm>
#include <qqml.h>

namespace brimshade::ui {

// A number that moves to its target: `opacity: fade.value`. A change of the target while it moves keeps position and,
// for springs, velocity. Parameters take effect with the change of target that they accompany, in whatever order the
// bindings run. Until its component is complete it jumps. It follows the animation driver's clock and runs only while
// it moves. Times are seconds.
class SpringValue : public QObject, public QQmlParserStatus {
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    Q_PROPERTY(double target READ target WRITE setTarget NOTIFY targetChanged)
    Q_PROPERTY(double value READ value NOTIFY valueChanged)
    // The value held between 0 and 1: springs overshoot, light does not.
    Q_PROPERTY(double clamped READ clamped NOTIFY clampedChanged)
    // How far from its target, as a part of its way, a spring counts as at rest, and the least step in which it moves.
    // The default is a tenth of a point of a panel's width.
    Q_PROPERTY(double precision MEMBER m_precision NOTIFY parametersChanged)
    // False: it jumps to a new target, as nobody sees it. So it does throughout the turn of the event loop in which
    // this becomes true: what comes into view appears in its place.
    Q_PROPERTY(bool animated READ isAnimated WRITE setAnimated NOTIFY parametersChanged)
    // True: the value stays where it is, whatever the target; false again, it moves there.
    Q_PROPERTY(bool held READ isHeld WRITE setHeld NOTIFY parametersChanged)
    Q_PROPERTY(bool running READ isRunning NOTIFY runningChanged)
    Q_PROPERTY(Curve curve READ curve WRITE setCurve NOTIFY parametersChanged)
    Q_PROPERTY(double response READ response WRITE setResponse NOTIFY parametersChanged)
    Q_PROPERTY(double damping READ damping WRITE setDamping NOTIFY parametersChanged)
    Q_PROPERTY(double duration READ duration WRITE setDuration NOTIFY parametersChanged)
    Q_PROPERTY(double delay READ delay WRITE setDelay NOTIFY parametersChanged)

public:
    // Spring takes response and damping; the others take duration.
    enum Curve { Spring, EaseIn, EaseOut, EaseInOut };
    Q_ENUM(Curve)

    explicit SpringValue(QObject *parent = nullptr);

    double target() const { return m_target; }
    double value() const { return m_value; }
    double clamped() const { return std::clamp(m_value, 0.0, 1.0); }
    bool isRunning() const;
    bool isAnimated() const { return m_isAnimated; }
    bool isHeld() const { return m_isHeld; }
    Curve curve() const { return m_next.curve; }
    double response() const { return m_next.spring.response; }
    double damping() const { return m_next.spring.dampingFraction; }
    double duration() const { return m_next.duration; }
    double delay() const { return m_next.delay; }

    void setTarget(double target);
    void setAnimated(bool animated);
    void setHeld(bool held);
    void setCurve(Curve curve);
    void setResponse(double response);
    void setDamping(double damping);
    void setDuration(double duration);
    void setDelay(double delay);
    Q_INVOKABLE void jumpTo(double value); // without motion; the target is then that value
    Q_INVOKABLE void run(double from, double to); // jumps to one, moves to the other

    void classBegin() override { }
    void componentComplete() override { m_isComplete = true; }

Q_SIGNALS:
    void targetChanged();
    void valueChanged();
    void clampedChanged();
    void runningChanged();
    void arrived(); // a motion has ended at its target
    void parametersChanged();

private:
    struct Parameters {
        Curve curve = Spring;
        SpringParameters spring;
        double duration = 0.25;
        double delay = 0;
    };

    // Endless: the value stops it when the motion is over.
    class Clock : public QAbstractAnimation {
    public:
        explicit Clock(SpringValue &value) : m_value(value) { }
        int duration() const override { return -1; }

    protected:
        void updateCurrentTime(int milliseconds) override { m_value.advance(milliseconds / 1000.0); }
        void updateState(State, State) override { Q_EMIT m_value.runningChanged(); }

    private:
        SpringValue &m_value;
    };

    void moveTo(double target);
    void changeParameter(auto &parameter, auto value);
    void advance(double seconds);
    double tolerance() const;
    bool advanceSpring(double seconds);
    bool advanceEase(double seconds);
    void setValue(double value);

    Parameters m_next; // for the next change of target
    Parameters m_motion; // of the present motion
    SpringState m_start; // distance from the target when the motion began
    SpringState m_now;
    double m_target = 0;
    double m_value = 0;
    double m_precision = 2e-4;
    bool m_isComplete = false;
    bool m_isAnimated = true;
    bool m_hasAppeared = true; // animated since an earlier turn
    bool m_isHeld = false;
    Clock m_clock{*this};
};

} // namespace brimshade::ui
