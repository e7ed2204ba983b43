#include "Driver.h"

using namespace brimshade::platform;

namespace brimshade::contract {

class WindowContract : public Contract { };

TEST_F(WindowContract, IsShownMadeKeyAndOrderedOutButNotDestroyed)
{
    const auto window = makeWindow(QRectF(50, 60, 300, 200));
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(window->frame(), QRectF(50, 60, 300, 200));
    window->orderFrontRegardless();
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(window->isKeyWindow());
    window->makeKeyAndOrderFront();
    EXPECT_TRUE(window->isKeyWindow());
    EXPECT_TRUE(window->occlusionStateVisible());
    ASSERT_TRUE(window->screen());
    EXPECT_EQ(window->screen()->frame, platform.screens.screens().at(0).frame);
    window->close();
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(window->isKeyWindow());
    EXPECT_FALSE(window->occlusionStateVisible());
    window->setFrame(QRectF(80, 90, 100, 100));
    window->makeKeyAndOrderFront();
    EXPECT_EQ(window->frame(), QRectF(80, 90, 100, 100));
    EXPECT_TRUE(window->isKeyWindow());
}

TEST_F(WindowContract, HasTheKeysOnlyWhenItCanAndLosesThemToOthers)
{
    const auto first = makeWindow(QRectF(50, 60, 300, 200)), second = makeWindow(QRectF(400, 60, 300, 200));
    const auto never = makeWindow(QRectF(50, 400, 300, 200), false);
    first->makeKeyAndOrderFront();
    never->makeKeyAndOrderFront();
    EXPECT_TRUE(never->isVisible());
    EXPECT_FALSE(never->isKeyWindow());
    EXPECT_TRUE(first->isKeyWindow());
    second->makeKeyAndOrderFront();
    EXPECT_FALSE(first->isKeyWindow());
    driver->click(toDisplay({100, 100}));
    EXPECT_TRUE(first->isKeyWindow()) << "a click takes the keys there";
    driver->click(toDisplay({100, 500}));
    EXPECT_TRUE(first->isKeyWindow());
    driver->click(emptySpot());
    EXPECT_FALSE(first->isKeyWindow()) << "another application has them";
}

TEST_F(WindowContract, MonitorsSeeOtherApplicationsEventsOrThisOnesByKind)
{
    QStringList heard;
    const auto global = platform.application.addGlobalMonitor(
        kLeftMouseDownMask | kRightMouseDownMask, [&](const Event &event) { heard << u"g%1"_s.arg(event.type); });
    const auto local = platform.application.addLocalMonitor(kKeyDownMask, [&](const Event &event) {
        heard << u"l%1"_s.arg(event.keyCode);
        EXPECT_EQ(platform.application.currentEventType(), keyDown);
        return std::optional<Event>();
    });
    ASSERT_NE(global, 0u);
    ASSERT_NE(local, 0u);
    const auto window = makeWindow(QRectF(50, 60, 300, 200));
    window->makeKeyAndOrderFront();
    driver->key(53, 0);
    driver->click(toDisplay({100, 100}));
    driver->click(toDisplay({100, 100}), true);
    EXPECT_EQ(heard, QStringList(u"l53"_s));
    driver->click(emptySpot());
    driver->click(emptySpot(), true);
    driver->key(12, 0); // goes elsewhere
    EXPECT_EQ(heard.mid(1), QStringList({u"g1"_s, u"g3"_s}));
    MonitorToken late = 0;
    platform.application.addGlobalMonitor(kLeftMouseDownMask,
                                          [&](const Event &) { platform.application.removeMonitor(late); });
    late = platform.application.addGlobalMonitor(kLeftMouseDownMask, [&](const Event &) { heard << u"late"_s; });
    platform.application.removeMonitor(global);
    driver->click(emptySpot());
    EXPECT_EQ(heard.size(), 3) << "a monitor that was removed meanwhile does not hear it either";
    EXPECT_FALSE(platform.application.currentEventType());
}

TEST_F(WindowContract, DescribesScreensConsistentlyAndAnnouncesAnotherArrangement)
{
    const auto screens = platform.screens.screens();
    ASSERT_FALSE(screens.empty());
    EXPECT_EQ(screens[0].frame.topLeft(), QPointF(0, 0)) << "the primary one is the origin";
    for (const Screen &screen : screens) {
        EXPECT_TRUE(screen.frame.contains(screen.visibleFrame));
        EXPECT_EQ(screen.auxiliaryTopLeftArea.has_value(), screen.auxiliaryTopRightArea.has_value());
        if (screen.auxiliaryTopLeftArea) {
            EXPECT_LE(maxX(*screen.auxiliaryTopLeftArea), minX(*screen.auxiliaryTopRightArea));
            EXPECT_EQ(maxY(*screen.auxiliaryTopLeftArea), maxY(screen.frame));
            EXPECT_GT(screen.safeAreaTop, 0);
        }
    }
    int told = 0;
    std::vector<Screen> whenTold;
    platform.notificationCenter.addObserver(QLatin1StringView(kNSApplicationDidChangeScreenParametersNotification),
                                            nullptr, [&] {
                                                ++told;
                                                whenTold = platform.screens.screens();
                                            });
    driver->changeScreens();
    driver->runDue();
    EXPECT_EQ(told, 1);
    EXPECT_NE(whenTold, screens) << "the change is in force when it is announced";
}

TEST_F(WindowContract, PointerIsWhereEventsAndWarpsPutIt)
{
    const QPointF spot = emptySpot();
    driver->movePointer(spot);
    EXPECT_EQ(platform.eventServices.pointerLocation(), spot);
    EXPECT_EQ(toDisplay(platform.application.mouseLocation()), spot);
    onWorker([&] {
        platform.eventServices.post({kCGEventMouseMoved, spot + QPointF(10, 0)});
        EXPECT_EQ(platform.eventServices.pointerLocation(), spot + QPointF(10, 0));
        platform.eventServices.warpMouseCursorPosition(spot);
    });
    EXPECT_EQ(platform.eventServices.pointerLocation(), spot);
}

} // namespace brimshade::contract
