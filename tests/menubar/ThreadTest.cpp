#include "desktop/core/Desktop.h"
#include "desktop/time/RealDispatch.h"
#include "menubar/MenuBarAccess.h"
#include "support/Descriptions.h"
#include "support/FakeSystem.h"
#include "support/Waiting.h"

namespace brimshade::menubar::tests {

// Only the reads leave the scan queue; names and icons are made on it, without a lock. The thread sanitizer checks
// that.
TEST(Scan, ReadsOnThreadsOfItsOwnAndNamesOnTheScanQueue)
{
    std::vector<desktop::ApplicationDescription> applications;
    for (int pid = 1; pid <= 20; ++pid) {
        applications.push_back(application(pid, u"App%1"_s.arg(pid % 5), {extra(u"a"_s), extra(u"b"_s)}));
        applications.back().latency = 0.0001 * (pid % 3);
    }
    applications[3].hangs = true;

    desktop::RealDispatch dispatch;
    FakeSymbols symbols;
    desktop::Desktop desktop({dispatch, symbols, nullptr, nullptr}, notchedDesktop(applications));
    const platform::Platform platform = desktop.platform();
    MenuBarAccess access(platform);
    const platform::Screen screen = platform.screens.screens().front();
    const auto queue = dispatch.makeSerialQueue(u"brimshade.scan"_s, platform::QualityOfService::userInitiated);
    std::vector<ExtraList> results;
    for (int i = 0; i < 3; ++i) {
        queue->async([&] {
            ExtraList extras = access.scan(screen, std::nullopt);
            dispatch.mainSync([&] { results.push_back(std::move(extras)); });
        });
    }
    waitFor(u"three scans"_s, [&] { return results.size() == 3; });
    for (const ExtraList &extras : results)
        EXPECT_EQ(extras.size(), 19U * 2);
}

} // namespace brimshade::menubar::tests
