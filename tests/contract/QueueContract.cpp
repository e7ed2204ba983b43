#include "Implementations.h"

using namespace brimshade::platform;

namespace brimshade::contract {
namespace {

class QueueContract : public Contract { };

TEST_P(QueueContract, RunsMainWorkByDueTimeThenByQueueing)
{
    std::string order;
    platform.dispatch.mainAfter(0.02, [&] { order += 'd'; });
    platform.dispatch.mainAfter(0.01, [&] { order += 'b'; });
    platform.dispatch.mainAfter(0.01, [&] {
        order += 'c';
        platform.dispatch.mainAsync([&] { order += 'n'; });
    });
    platform.dispatch.mainAsync([&] { order += 'a'; });
    EXPECT_EQ(order, "") << "never inline";
    driver->advance(0.5);
    EXPECT_EQ(order, "abcnd");
}

TEST_P(QueueContract, RunsSerialWorkInOrderOffTheMainThreadAndMainSyncOnIt)
{
    std::string order;
    bool wasMain = true, syncWasMain = false;
    const auto queue = platform.dispatch.makeSerialQueue(QStringLiteral("contract"), QualityOfService::userInitiated);
    queue->async([&] {
        wasMain = platform.dispatch.isMainThread();
        platform.dispatch.sleep(0.1);
        order += '1';
    });
    queue->async([&] {
        platform.dispatch.mainSync([&] {
            syncWasMain = platform.dispatch.isMainThread();
            order += '2';
        });
        order += '3';
    });
    queue->async([&] { platform.dispatch.mainAsync([&] { order += '4'; }); });
    driver->advance(0.5);
    EXPECT_EQ(order, "1234");
    EXPECT_FALSE(wasMain);
    EXPECT_TRUE(syncWasMain);
    platform.dispatch.mainSync([&] { order += '5'; });
    EXPECT_EQ(order, "12345") << "inline on the main thread";
}

TEST_P(QueueContract, TicksUntilInvalidatedAlsoFromWithinATick)
{
    int ticks = 0;
    std::unique_ptr<Timer> timer;
    timer = platform.dispatch.scheduleRepeating(0.25, [&] {
        if (++ticks == 3)
            timer->invalidate();
    });
    driver->runDue();
    EXPECT_EQ(ticks, 0) << "the first comes one interval from now";
    driver->advance(2);
    EXPECT_EQ(ticks, 3);
}

INSTANTIATE_TEST_SUITE_P(On, QueueContract, implementations(), implementationName);

} // namespace
} // namespace brimshade::contract
