#pragma once
#include <QAbstractAnimation>
#include <QAnimationDriver>
#include <QCoreApplication>

namespace brimshade::ui {

// While it exists, this thread's animations follow this clock, to the millisecond.
class ManualAnimationDriver : public QAnimationDriver {
public:
    ManualAnimationDriver()
    {
        install();
        // The toolkit adds real time to ours whenever a first animation starts, so keep one running all along.
        m_keeper.start();
        step(1);
    }
    ~ManualAnimationDriver() override
    {
        m_keeper.stop();
        QCoreApplication::processEvents();
        uninstall();
    }

    qint64 elapsed() const override { return m_now - m_startedAt; }
    qint64 now() const { return m_now; }

    void step(int milliseconds)
    {
        QCoreApplication::processEvents(); // animations that began meanwhile get their start time
        m_now += milliseconds;
        advanceAnimation();
        QCoreApplication::processEvents();
    }

protected:
    void start() override
    {
        m_startedAt = m_now;
        QAnimationDriver::start();
    }

private:
    class Keeper : public QAbstractAnimation {
    public:
        int duration() const override { return -1; }

    protected:
        void updateCurrentTime(int) override { }
    };

    qint64 m_now = 0;
    qint64 m_startedAt = 0;
    Keeper m_keeper;
};

} // namespace brimshade::ui
