#include "desktop/time/VirtualDispatch.h"
#include "support/Test.h"

#include <QObject>
#include <QPointer>
#include <thread>

namespace brimshade::desktop {

using platform::QualityOfService;
using testing::DoubleEq;
using testing::ElementsAre;

class VirtualDispatchTest : public testing::Test {
protected:
    void note(const std::string &what) { log.push_back(what + " " + std::to_string(dispatch.now()).substr(0, 5)); }

    VirtualDispatch dispatch;
    std::vector<std::string> log;
};

TEST_F(VirtualDispatchTest, ADelayEndsExactlyAtItsBound)
{
    struct Case {
        double delay;
        std::vector<double> before; // not yet due
        double last;
    };
    for (const Case &c : {Case{0.35, {0.349}, 0.001}, Case{0.3, {0.1}, 0.2}, Case{0.3, {0.299999999}, 1e-9},
                          Case{1.2, {0.4, 0.4, 0.399}, 0.001}, Case{0, {}, 0}}) {
        bool ran = false;
        dispatch.mainAfter(c.delay, [&] { ran = true; });
        for (const double step : c.before)
            dispatch.advance(step);
        EXPECT_FALSE(ran) << c.delay;
        dispatch.advance(c.last);
        EXPECT_TRUE(ran) << c.delay;
    }
    // Ten steps of a tenth are one second, whatever floating point says.
    const double start = dispatch.now();
    for (int i = 0; i < 10; ++i)
        dispatch.advance(0.1);
    EXPECT_THAT(dispatch.now(), DoubleEq(start + 1));
}

TEST_F(VirtualDispatchTest, SleepersTakeTurnsByTheClock)
{
    // Two queues and the main one always take the same course.
    const auto fast = dispatch.makeSerialQueue(u"fast"_s, QualityOfService::userInitiated);
    const auto slow = dispatch.makeSerialQueue(u"slow"_s, QualityOfService::userInitiated);
    const auto steps = [this](const char *name, double pause) {
        for (int i = 0; i < 3; ++i) {
            dispatch.sleep(pause);
            note(name);
        }
        dispatch.mainSync([this] { note("sync"); });
        note(name);
    };
    slow->async([=] { steps("slow", 0.4); });
    fast->async([=] { steps("fast", 0.2); });
    dispatch.mainAfter(0.4, [this] { note("main"); });
    dispatch.advance(0.39);
    EXPECT_THAT(log, ElementsAre("fast 0.200"));
    dispatch.advance(1);
    EXPECT_THAT(log,
                ElementsAre("fast 0.200", "main 0.400", "slow 0.400", "fast 0.400", "fast 0.600", "sync 0.600",
                            "fast 0.600", "slow 0.800", "slow 1.200", "sync 1.200", "slow 1.200"));
}

TEST_F(VirtualDispatchTest, ConcurrentIterationsTakeAsLongAsTheSlowestAndWakeInTheirOrder)
{
    const auto queue = dispatch.makeSerialQueue(u"caller"_s, QualityOfService::userInitiated);
    const double pauses[] = {0.2, 0.4, 0, 0.2, 0.1};
    queue->async([&, this] {
        dispatch.concurrentPerform(std::size(pauses), [&](std::size_t i) {
            note("begin" + std::to_string(i));
            if (pauses[i] > 0)
                dispatch.sleep(pauses[i]);
            note("end" + std::to_string(i));
        });
        note("all");
        const double shorter[] = {0.05, 0.1}; // the first one sleeps again after the second, until the same instant
        dispatch.concurrentPerform(2, [&](std::size_t i) {
            for (double slept = 0; slept < 0.1; slept += shorter[i])
                dispatch.sleep(shorter[i]);
            note("again" + std::to_string(i));
        });
        dispatch.concurrentPerform(300, [this](std::size_t) { dispatch.sleep(0.25); });
        note("many");
    });
    dispatch.advance(0.75);
    EXPECT_THAT(log,
                ElementsAre("begin0 0.000", "begin1 0.000", "begin2 0.000", "end2 0.000", "begin3 0.000",
                            "begin4 0.000", "end4 0.100", "end0 0.200", "end3 0.200", "end1 0.400", "all 0.400",
                            "again0 0.500", "again1 0.500", "many 0.750"));
}

TEST_F(VirtualDispatchTest, FramesAreMadeOnlyWhileTheyAreWanted)
{
    std::vector<double> frames;
    bool wanted = false;
    dispatch.setFrames([&] { return wanted; }, [&] { frames.push_back(dispatch.now()); });
    dispatch.advance(5);
    EXPECT_TRUE(frames.empty());

    dispatch.mainAfter(0.5, [&] { wanted = true; });
    dispatch.mainAfter(1, [&] { wanted = false; }); // the frame of that instant still comes
    dispatch.advance(100);
    ASSERT_EQ(frames.size(), 30U);
    EXPECT_THAT(frames.front(), testing::DoubleNear(5.5 + 1 / 60., 1e-8));
    EXPECT_THAT(frames.back(), DoubleEq(6));

    frames.clear();
    wanted = true;
    for (int i = 0; i < 120; ++i)
        dispatch.advance(1 / 60.);
    EXPECT_EQ(frames.size(), 120U); // none is lost to rounding
}

} // namespace brimshade::desktop
