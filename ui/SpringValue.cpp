#include "SpringValue.h"

#include <QEasingCurve>
#include <QPointF>
#include <cmath>

namespace brimshade::ui {

namespace {

double eased(SpringValue::Curve curve, double progress)
{
    QEasingCurve easing(QEasingCurve::BezierSpline);
    const double in = curve == SpringValue::EaseOut ? 0 : 0.42;
    const double out = curve == SpringValue::EaseIn ? 1 : 0.58;
    easing.addCubicBezierSegment({in, 0}, {out, 1}, {1, 1});
    return easing.valueForProgress(progress);
}

} // namespace

SpringValue::SpringValue(QObject *parent) : QObject(parent) { }

bool SpringValue::isRunning() const
{
    return m_clock.state() == QAbstractAnimation::Running;
}

void SpringValue::setTarget(double target)
{
    if (m_target == target || !std::isfinite(target))
        return;
    if (m_isComplete && m_isHeld)
        m_target = target;
    else
        moveTo(target);
    Q_EMIT targetChanged();
}

void SpringValue::moveTo(double target)
{
    m_target = target;
    if (!m_isComplete || !m_isAnimated || !m_hasAppeared) {
        jumpTo(target);
        return;
    }
    m_now.position = m_value - target;
    m_start = m_now;
    m_motion = m_next;
    m_clock.stop();
    m_clock.start();
}

void SpringValue::setAnimated(bool animated)
{
    if (m_isAnimated == animated)
        return;
    m_isAnimated = animated;
    m_hasAppeared = !m_isComplete;
    if (animated && m_isComplete)
        QMetaObject::invokeMethod(
            this, [this] { m_hasAppeared = m_isAnimated; }, Qt::QueuedConnection);
    Q_EMIT parametersChanged();
}

void SpringValue::setHeld(bool held)
{
    if (m_isHeld == held)
        return;
    m_isHeld = held;
    if (held)
        m_clock.stop();
    else if (m_value != m_target)
        moveTo(m_target);
    Q_EMIT parametersChanged();
}

void SpringValue::jumpTo(double value)
{
    m_clock.stop();
    m_now = m_start = {};
    setValue(value);
    if (m_target == value)
        return;
    m_target = value;
    Q_EMIT targetChanged();
}

void SpringValue::run(double from, double to)
{
    jumpTo(from);
    setTarget(to);
}

// The binding of a parameter may run just after that of the target.
void SpringValue::changeParameter(auto &parameter, auto value)
{
    if (parameter == value)
        return;
    parameter = value;
    if (isRunning() && m_clock.currentTime() == 0)
        m_motion = m_next;
    Q_EMIT parametersChanged();
}

void SpringValue::setCurve(Curve curve)
{
    changeParameter(m_next.curve, curve);
}

void SpringValue::setResponse(double response)
{
    changeParameter(m_next.spring.response, response);
}

void SpringValue::setDamping(double damping)
{
    changeParameter(m_next.spring.dampingFraction, std::max(0.05, damping));
}

void SpringValue::setDuration(double duration)
{
    changeParameter(m_next.duration, duration);
}

void SpringValue::setDelay(double delay)
{
    changeParameter(m_next.delay, delay);
}

void SpringValue::advance(double seconds)
{
    const double moving = seconds - m_motion.delay;
    if (!isRunning() || moving < 0)
        return;
    const bool isDone = m_motion.curve == Spring ? advanceSpring(moving) : advanceEase(moving);
    if (!isDone) {
        const double value = m_target + m_now.position;
        if (std::abs(value - m_value) >= tolerance())
            setValue(value);
        return;
    }
    jumpTo(m_target);
    Q_EMIT arrived();
}

bool SpringValue::advanceSpring(double seconds)
{
    m_now = springAt(m_motion.spring, m_start, seconds);
    return springIsSettled(m_motion.spring, m_now, tolerance());
}

double SpringValue::tolerance() const
{
    return m_precision * std::max(std::abs(m_start.position), 1e-3);
}

bool SpringValue::advanceEase(double seconds)
{
    if (seconds >= m_motion.duration)
        return true;
    m_now = {m_start.position * (1 - eased(m_motion.curve, seconds / m_motion.duration)), 0};
    return false;
}

void SpringValue::setValue(double value)
{
    if (m_value == value)
        return;
    const double before = clamped();
    m_value = value;
    Q_EMIT valueChanged();
    if (clamped() != before)
        Q_EMIT clampedChanged();
}

} // namespace brimshade::ui
