#include "app/ScanQueue.h"
#include "desktop/time/VirtualDispatch.h"
#include "support/Test.h"

namespace brimshade::app::tests {

using testing::ElementsAre;

TEST(ScanQueue, JoinsWaitingScansButNeverAcrossAMove)
{
    desktop::VirtualDispatch dispatch;
    ScanQueue queue(dispatch.makeSerialQueue(u"test"_s, platform::QualityOfService::userInitiated));
    std::vector<std::string> log;
    const auto lasting = [&](const char *name) {
        return [&, name] {
            dispatch.sleep(1);
            log.push_back(name + std::to_string(dispatch.now()).substr(0, 2));
        };
    };
    queue.scan(lasting("a"));
    dispatch.runDue(); // the scan has begun
    queue.scan(lasting("b"));
    queue.scan(lasting("c"));
    queue.move(lasting("move"));
    queue.scan(lasting("d"));
    dispatch.advance(1);
    queue.scan(lasting("e")); // c runs now, the move and d wait
    queue.move(lasting("move"));
    queue.move(lasting("move"));
    queue.scan(lasting("f"));
    dispatch.advance(10);
    queue.scan(lasting("g"));
    dispatch.advance(10);
    EXPECT_THAT(log, ElementsAre("a1.", "c2.", "move3.", "e4.", "move5.", "move6.", "f7.", "g12"));
}

} // namespace brimshade::app::tests
