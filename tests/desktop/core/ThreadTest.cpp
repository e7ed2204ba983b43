#include "World.h"
#include "desktop/time/RealDispatch.h"
#include "support/Waiting.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <atomic>

using namespace brimshade::platform;

namespace brimshade::desktop {

// Other threads ask for everything they may, as fast as they can, while the main thread turns the display upside down.
// The real check is the thread sanitizer's.
TEST(DesktopThreads, ReadsAndPostsOnAnyThreadWhileTheDisplayChanges)
{
    RealDispatch dispatch;
    FakeSymbols symbols;
    auto desktop = std::make_unique<Desktop>(Desktop::Services{dispatch, symbols, nullptr, nullptr}, someDesktop());
    const Platform platform = desktop->platform();
    const auto own = platform.statusBar.createStatusItem(28);

    constexpr int kWorkers = 2, kRounds = 300;
    std::atomic<int> running = kWorkers;
    std::atomic<std::uint64_t> reads = 0;
    const auto walk = [&](const AXUIElement &element, const auto &again) -> void {
        for (const QString &attribute : {u"AXRole"_s, u"AXTitle"_s, u"AXIdentifier"_s, u"AXPosition"_s, u"AXSize"_s}) {
            const auto value = platform.accessibility.copyAttributeValue(element, attribute);
            ++reads;
        }
        const auto children = platform.accessibility.copyAttributeValue(element, u"AXChildren"_s);
        ++reads;
        if (!children)
            return;
        for (const AXUIElement &child : std::get<std::vector<AXUIElement>>(*children))
            again(child, again);
    };
    const auto work = [&] {
        for (int round = 0; round < kRounds; ++round) {
            for (const auto &application : platform.workspace.runningApplications()) {
                const auto element = platform.accessibility.createApplication(application.processIdentifier);
                platform.accessibility.setMessagingTimeout(element, 0.25);
                const auto bar = platform.accessibility.copyAttributeValue(element, u"AXExtrasMenuBar"_s);
                ++reads;
                if (bar)
                    walk(std::get<AXUIElement>(*bar), walk);
                platform.workspace.iconForFile(application.bundlePath.value_or(QString()));
            }
            platform.screens.mainScreen();
            platform.windowServer.copyWindowInfo();
            platform.eventServices.post({kCGEventMouseMoved, QPointF(round, 10)});
            platform.eventServices.warpMouseCursorPosition(*platform.eventServices.pointerLocation());
            platform.accessibility.isProcessTrusted();
        }
        --running;
    };
    for (int i = 0; i < kWorkers; ++i)
        dispatch.globalAsync(QualityOfService::userInitiated, work);

    const QDeadlineTimer deadline(kPatience);
    for (int turn = 0; running > 0; ++turn) {
        ASSERT_FALSE(deadline.hasExpired()) << "never came: the end of the reads";
        desktop->change(12, {.description = application(12, {extra(u"b.%1"_s.arg(turn % 3))})});
        desktop->quit(11);
        desktop->launch({.description = application(11, {extra(u"a.one"_s)})});
        desktop->setScreens({notchedScreen()});
        desktop->setMenuBarShowing(turn % 2);
        own->setLength(28 + turn % 50);
        QCoreApplication::processEvents();
    }
    dispatch.stop();
    EXPECT_EQ(desktop->inspection().requestCount(), reads);
}

} // namespace brimshade::desktop
