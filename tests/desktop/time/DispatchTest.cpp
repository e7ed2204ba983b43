// What both implementations promise. Where a delay is needed, only the order counts, not how long it took.
#include "desktop/time/RealDispatch.h"
#include "desktop/time/VirtualDispatch.h"
#include "support/Test.h"
#include "support/Waiting.h"

#include <QCoreApplication>
#include <atomic>

namespace brimshade::desktop {

using platform::DispatchWorkItem;
using platform::QualityOfService;
using testing::ElementsAre;

void runUntil(VirtualDispatch &dispatch, const bool &done)
{
    dispatch.advance(1);
    ASSERT_TRUE(done);
}

void runUntil(RealDispatch &, const bool &done)
{
    waitFor(u"the end of the work"_s, [&] { return done; });
}

template <class Implementation> class DispatchTest : public testing::Test {
protected:
    // Runs the main queue until done is true or, under virtual time, until enough time has passed.
    void run(const bool &done) { runUntil(*dispatch, done); }
    std::shared_ptr<platform::SerialQueue> makeQueue()
    {
        return dispatch->makeSerialQueue(u"test"_s, QualityOfService::userInitiated);
    }

    std::unique_ptr<Implementation> dispatch = std::make_unique<Implementation>();
    std::vector<int> order;
    bool done = false;
};

using Implementations = testing::Types<RealDispatch, VirtualDispatch>;
TYPED_TEST_SUITE(DispatchTest, Implementations);

TYPED_TEST(DispatchTest, WorkRunsByDueTimeThenByQueueing)
{
    // Except for the first, each is due after the ones before it, however slowly they are queued.
    auto &order = this->order;
    this->dispatch->mainAfter(86400, [&] { order.push_back(5); });
    this->dispatch->mainAsync([&] { order.push_back(1); });
    this->dispatch->mainAfter(-1, [&] { order.push_back(2); });
    this->dispatch->mainAfter(0.001, [&] { order.push_back(3); });
    this->dispatch->mainAfter(0.002, [&] {
        order.push_back(4);
        this->done = true;
    });
    EXPECT_THAT(order, ElementsAre()); // nothing runs before a later turn
    this->run(this->done);
    EXPECT_THAT(order, ElementsAre(1, 2, 3, 4));
}

TYPED_TEST(DispatchTest, CancelledWorkItemDoesNotRun)
{
    auto kept = std::make_shared<DispatchWorkItem>([&] { this->order.push_back(1); });
    auto cancelled = std::make_shared<DispatchWorkItem>([&] { this->order.push_back(2); });
    for (const auto &item : {cancelled, kept})
        this->dispatch->mainAfter(0.001, [item] { item->perform(); });
    this->dispatch->mainAfter(0.001, [&] { this->done = true; });
    cancelled->cancel();
    this->run(this->done);
    EXPECT_THAT(this->order, ElementsAre(1));
}

TYPED_TEST(DispatchTest, TimerStopsWhenItIsInvalidatedOrDestroyedInItsOwnTick)
{
    int ticks = 0;
    std::unique_ptr<platform::Timer> invalidated;
    std::unique_ptr<platform::Timer> destroyed;
    invalidated = this->dispatch->scheduleRepeating(0.001, [&] {
        if (++ticks == 3)
            invalidated->invalidate();
    });
    destroyed = this->dispatch->scheduleRepeating(0.001, [&] {
        destroyed.reset();
        this->order.push_back(1);
    });
    this->dispatch->mainAfter(0.01, [&] { this->done = true; });
    this->run(this->done);
    EXPECT_LE(ticks, 3); // a real clock may have skipped some
    EXPECT_THAT(this->order, ElementsAre(1));
}

TYPED_TEST(DispatchTest, SerialQueueKeepsItsOrderOffTheMainThreadAndMainSyncRunsOnIt)
{
    const auto queue = this->makeQueue();
    EXPECT_EQ(queue->label(), u"test"_s);
    std::vector<int> &order = this->order; // touched by one thread at a time
    bool onMain = false, syncOnMain = false;
    for (int i = 0; i < 100; ++i) {
        queue->async([&, i] {
            order.push_back(i);
            onMain |= this->dispatch->isMainThread();
        });
    }
    queue->async([&] {
        this->dispatch->mainSync([&] {
            syncOnMain = this->dispatch->isMainThread();
            order.push_back(100);
        });
        order.push_back(101);
        this->dispatch->mainAsync([&] { this->done = true; });
    });
    this->run(this->done);
    EXPECT_EQ(order.size(), 102U);
    EXPECT_TRUE(std::ranges::is_sorted(order));
    EXPECT_FALSE(onMain);
    EXPECT_TRUE(syncOnMain);
    this->dispatch->mainSync([&] { order.push_back(102); });
    EXPECT_EQ(order.back(), 102) << "inline on the main thread";
}

TYPED_TEST(DispatchTest, GlobalWorkOverlaps)
{
    // The first piece waits for what the second one does: run one after the other, they would never end.
    bool secondRan = false; // main thread only
    this->dispatch->globalAsync(QualityOfService::userInitiated, [&] {
        bool seen = false;
        while (!seen) {
            this->dispatch->sleep(0.0001);
            this->dispatch->mainSync([&] { seen = secondRan; });
        }
        this->dispatch->mainAsync([&] { this->done = true; });
    });
    this->dispatch->globalAsync(QualityOfService::userInitiated,
                                [&] { this->dispatch->mainSync([&] { secondRan = true; }); });
    this->run(this->done);
}

TYPED_TEST(DispatchTest, ConcurrentIterationsOverlapWhateverHangsElsewhere)
{
    for (int i = 0; i < 100; ++i)
        this->dispatch->globalAsync(QualityOfService::userInitiated, [&] { this->dispatch->sleep(86400); });
    // Each waits until all have begun: with fewer threads than iterations, that would never happen.
    constexpr std::size_t kIterations = 20;
    std::atomic<std::size_t> begun = 0;
    std::vector<int> runs(kIterations);
    bool onMain = false;
    const auto queue = this->makeQueue();
    queue->async([&] {
        this->dispatch->concurrentPerform(0, [](std::size_t) { ADD_FAILURE(); });
        this->dispatch->concurrentPerform(1, [](std::size_t index) { EXPECT_EQ(index, 0U); });
        this->dispatch->concurrentPerform(kIterations, [&](std::size_t index) {
            ++runs[index];
            if (index == 0)
                onMain = this->dispatch->isMainThread();
            for (++begun; begun < kIterations;)
                this->dispatch->sleep(0.0001);
        });
        EXPECT_THAT(runs, testing::Each(1)) << "it should return only when all have ended";
        this->dispatch->mainAsync([&] { this->done = true; });
    });
    this->run(this->done);
    EXPECT_FALSE(onMain);
}

TYPED_TEST(DispatchTest, DestructionLetsConcurrentIterationsEnd)
{
    TypeParam &dispatch = *this->dispatch;
    std::atomic<int> ended = 0;
    bool returned = false;
    this->makeQueue()->async([&] {
        std::atomic<int> begun = 0;
        dispatch.concurrentPerform(4, [&](std::size_t) {
            if (++begun == 3) // the fourth may begin during the shutdown
                dispatch.mainAsync([&] { this->done = true; });
            dispatch.sleep(86400);
            dispatch.mainSync([] { ADD_FAILURE() << "nothing may run any more"; });
            ++ended;
        });
        returned = true;
    });
    this->run(this->done);
    dispatch.stop();
    EXPECT_TRUE(returned);
    EXPECT_EQ(ended, 4);
}

TYPED_TEST(DispatchTest, DestructionEndsSleepsAndDropsMainSync)
{
    TypeParam &dispatch = *this->dispatch; // a reference, since the pointer is reset while the workers end
    const auto asleep = this->makeQueue();
    const auto waiting = this->makeQueue();
    auto witness = std::make_shared<int>();
    bool woke = false;
    bool ranOnMain = false;
    asleep->async([&] {
        dispatch.mainAsync([&] { this->done = true; });
        dispatch.sleep(86400);
        dispatch.sleep(86400);
        dispatch.mainSync([&] { ranOnMain = true; });
        woke = true;
    });
    asleep->async([witness] { ADD_FAILURE() << "its turn should never come"; });
    this->run(this->done);
    waiting->async([&] { dispatch.mainSync([&] { ranOnMain = true; }); }); // may be under way or not yet begun
    dispatch.mainAfter(86400, [witness] {});
    dispatch.stop();
    EXPECT_TRUE(woke);
    dispatch.mainAsync([witness] {});
    dispatch.makeSerialQueue({}, QualityOfService::utility)->async([witness] {});
    this->dispatch.reset();

    EXPECT_FALSE(ranOnMain);
    asleep->async([witness] {}); // a queue may outlive its dispatch
    EXPECT_EQ(witness.use_count(), 1);
}

} // namespace brimshade::desktop
