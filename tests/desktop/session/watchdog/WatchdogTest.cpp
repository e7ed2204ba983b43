#include "desktop/session/watchdog/Watchdog.h"
#include "desktop/session/watchdog/Silence.h"
#include "support/Test.h"
#include "support/Waiting.h"

#include <future>
#include <unistd.h>

namespace brimshade::desktop::session {

TEST(SilenceTest, CountsNoMoreThanATickBetweenTwoTicks)
{
    struct Case {
        std::vector<double> times; // the ticks', from 0 on
        double length;
    };
    for (const Case &each : {
             Case{{0.25, 0.5, 0.75}, 0.75},
             Case{{0.25, 60, 60.25}, 0.75}, // stopped in between
             Case{{0.1, 0.2}, 0.2}, // woken early
             Case{{3600}, 0.25},
         }) {
        Silence silence(0.25, 0);
        double length = 0;
        for (const double time : each.times)
            length = silence.lasted(time);
        EXPECT_DOUBLE_EQ(length, each.length);
        silence.broken(each.times.back());
        EXPECT_DOUBLE_EQ(silence.lasted(each.times.back() + 0.125), 0.125);
    }
}

// Time passes when the test says so. The watchdog's lock guards all members.
class SteppedClock : public Watchdog::Clock {
public:
    double now() const override { return m_now; }
    void wait(std::condition_variable &changed, std::unique_lock<std::mutex> &lock, double) override
    {
        m_changed = &changed;
        if (!m_mutex) { // written only once, because step() reads it in order to lock it
            m_mutex = lock.mutex();
            m_started.set_value();
        }
        ++waits;
        arrived.notify_all();
        EXPECT_EQ(changed.wait_for(lock, kPatience), std::cv_status::no_timeout) << "never came: a step, or the end";
    }

    // Lets time pass and waits until the watchdog has reacted.
    void step(double seconds)
    {
        std::unique_lock lock(*m_mutex);
        m_now += seconds;
        const int before = waits;
        m_changed->notify_all();
        EXPECT_TRUE(arrived.wait_for(lock, kPatience, [&] { return waits > before || hasEnded; })) << "no tick came";
    }
    int waitsUntilNow()
    {
        const std::lock_guard lock(*m_mutex);
        return waits;
    }
    void untilStarted() { ASSERT_EQ(m_started.get_future().wait_for(kPatience), std::future_status::ready); }

    std::condition_variable arrived;
    int waits = 0;
    bool hasEnded = false;

private:
    double m_now = 0;
    std::condition_variable *m_changed = nullptr;
    std::mutex *m_mutex = nullptr;
    std::promise<void> m_started;
};

class WatchdogTest : public testing::Test {
protected:
    void answer()
    {
        for (const auto &question : std::exchange(questions, {}))
            question();
    }
    // Before each of them, the main thread answers or does not.
    void steps(int count, double seconds, bool answers)
    {
        for (int i = 0; i < count && !clock->hasEnded; ++i) {
            if (answers)
                answer();
            clock->step(seconds);
        }
    }
    void watch()
    {
        watchdog.watch(true);
        clock->untilStarted();
    }

    SteppedClock *clock = new SteppedClock;
    std::vector<Watchdog::Work> questions;
    Watchdog watchdog{{.askMain = [this](const Watchdog::Work &work) { questions.push_back(work); },
                       .end =
                           [this] {
                               clock->hasEnded = true;
                               clock->arrived.notify_all();
                           }},
                      std::unique_ptr<Watchdog::Clock>(clock)};
};

TEST_F(WatchdogTest, EndsTheProcessAfterThreeSecondsWithoutAnAnswer)
{
    watch();
    steps(100, 0.25, true);
    EXPECT_FALSE(clock->hasEnded);
    answer(); // the last one
    steps(12, 0.25, false);
    EXPECT_FALSE(clock->hasEnded) << "it has been silent for 2.75 s since the question";
    steps(1, 0.25, false);
    EXPECT_TRUE(clock->hasEnded);
}

TEST_F(WatchdogTest, AStoppedProcessLivesOn)
{
    watch();
    steps(10, 3600, false); // each gap counts as one tick
    EXPECT_FALSE(clock->hasEnded);
    steps(20, 0.25, true);
    EXPECT_FALSE(clock->hasEnded);
}

TEST_F(WatchdogTest, SleepsWhileThereIsNothingToWatch)
{
    watch();
    steps(11, 0.25, false);
    watchdog.watch(false);
    const int waits = clock->waitsUntilNow();
    for (int i = 0; i < 3; ++i)
        watchdog.watch(false); // wakes its thread, which goes back to sleep
    EXPECT_LE(clock->waitsUntilNow(), waits + 1) << "it may just have been about to wait once more";

    watchdog.watch(true); // the count starts again
    steps(11, 0.25, false); // it asks at once or, if it wakes late, at the first of these
    EXPECT_FALSE(clock->hasEnded);
}

TEST(RealWatchdogTest, EndsAProcessWhoseMainThreadHangs)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto hang = [] {
        Watchdog watchdog({.askMain = [](const Watchdog::Work &) { /* nobody listens */ }});
        watchdog.watch(true);
        alarm(20); // our patience ends here
        for (;;)
            pause();
    };
    EXPECT_EXIT(hang(), testing::ExitedWithCode(1), "brimshade: it hung while it had the keyboard");
}

} // namespace brimshade::desktop::session
