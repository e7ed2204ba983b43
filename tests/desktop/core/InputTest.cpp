#include "World.h"

using namespace brimshade::platform;

namespace brimshade::desktop {

constexpr QPointF kOwnItem(1360, 18), kFirstItem(1330, 18), kClock(1400, 18), kEmptyBar(400, 18), kWall(300, 800);

class InputTest : public World {
protected:
    InputTest()
    {
        own->button()->setAction(kLeftMouseUpMask | kRightMouseUpMask,
                                 [this] { heard << u"action %1"_s.arg(*platform.application.currentEventType()); });
        settle();
        const EventMask all = kLeftMouseDownMask | kLeftMouseUpMask | kRightMouseDownMask | kKeyDownMask;
        platform.application.addGlobalMonitor(all,
                                              [this](const Event &event) { heard << u"global %1"_s.arg(event.type); });
        platform.application.addLocalMonitor(all, [this](const Event &event) -> std::optional<Event> {
            heard << u"local %1"_s.arg(event.type);
            return event;
        });
    }
    std::unique_ptr<Window> openWindow(const QRectF &rect, int level = kNormalWindowLevel)
    {
        WindowAttributes attributes;
        attributes.contentRect = rect;
        attributes.level = level;
        auto window = platform.windows.createWindow(attributes, HostedView());
        window->makeKeyAndOrderFront();
        return window;
    }
    QString takeHeard() { return std::exchange(heard, {}).join(u", "_s); }

    QStringList heard;
    std::shared_ptr<StatusItem> own = platform.statusBar.createStatusItem(28);
};

TEST_F(InputTest, TellsMonitorsOfPressesByWhereTheyLand)
{
    const auto window = openWindow(QRectF(700, 200, 300, 300));
    const std::tuple<const char *, QPointF, MouseButton, Target, QString, bool> cases[] = {
        {"its window", {750, 600}, MouseButton::left, Target::window, u"local 1, local 2"_s, true},
        {"its item", kOwnItem, MouseButton::left, Target::menuBar, u"local 1, local 2, action 2"_s, true},
        {"its item, right", kOwnItem, MouseButton::right, Target::menuBar, u"local 3, action 4"_s, true},
        {"another's item", kClock, MouseButton::left, Target::menuBar, u"global 1, global 2"_s, true},
        {"the bar", kEmptyBar, MouseButton::right, Target::menuBar, u"global 3"_s, true},
        {"another application", kWall, MouseButton::left, Target::elsewhere, u"global 1, global 2"_s, false},
    };
    for (const auto &[name, at, button, target, heard, keepsKeys] : cases) {
        window->makeKeyAndOrderFront();
        moveTo(at);
        EXPECT_EQ(desktop.input().pressed(button, 0), target) << name;
        EXPECT_EQ(desktop.input().released(button, 0), target) << name;
        EXPECT_EQ(takeHeard(), heard) << name;
        EXPECT_EQ(window->isKeyWindow(), keepsKeys) << name;
        EXPECT_FALSE(platform.application.currentEventType()) << name;
    }
}

TEST_F(InputTest, RunsTheItemsActionOnlyForAReleaseInsideOfAPressInside)
{
    press(kOwnItem);
    EXPECT_TRUE(desktop.menuBar().items().back().isOwn || desktop.menuBar().items().at(3).isHighlighted);
    moveTo(kWall);
    desktop.input().released(MouseButton::left, 0);
    EXPECT_EQ(takeHeard(), u"local 1, local 2"_s);
    press(kWall);
    moveTo(kOwnItem);
    desktop.input().released(MouseButton::left, 0);
    EXPECT_EQ(takeHeard(), u"global 1, global 2"_s);
    EXPECT_EQ(desktop.input().released(MouseButton::left, 0), Target::menuBar) << "a release without a press";
    click(kOwnItem, MouseButton::left, kControlFlag);
    EXPECT_EQ(takeHeard(), u"local 1, local 2, action 2"_s) << "Control makes no right button";
}

TEST_F(InputTest, DoesNotTellAMonitorThatWasRemovedMeanwhile)
{
    MonitorToken second = 0;
    int told = 0;
    platform.application.addGlobalMonitor(kLeftMouseDownMask,
                                          [&](const Event &) { platform.application.removeMonitor(second); });
    second = platform.application.addGlobalMonitor(kLeftMouseDownMask, [&](const Event &) { ++told; });
    EXPECT_NE(second, 0u);
    click(kWall);
    EXPECT_EQ(told, 0);
}

TEST_F(InputTest, AsksForACommandDragBeforeAnyWindowThatCoversTheBar)
{
    const auto panel = openWindow(QRectF(256, 262, 1256, 720), kStatusWindowLevel);
    press(kFirstItem);
    EXPECT_EQ(desktop.input().released(MouseButton::left, 0), Target::window);
    press(kFirstItem, MouseButton::left, kCommandFlag);
    moveTo({1390, 18}, kCommandFlag);
    EXPECT_EQ(desktop.input().released(MouseButton::left, kCommandFlag), Target::menuBar);
    settle();
    EXPECT_EQ(barFrame(u"a.one"_s).x(), 1342);
}

TEST_F(InputTest, ThePermissionsWindowsStandAboveOursAndAreAnotherApplications)
{
    const auto window = openWindow(QRectF(0, 0, 1512, 900));
    platform.workspace.openURL(u"x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility"_s);
    EXPECT_TRUE(desktop.permission().isPageOpen());
    EXPECT_FALSE(window->isKeyWindow()) << "another application came to the front";
    EXPECT_FALSE(platform.workspace.openURL(u"no address"_s));
    EXPECT_EQ(desktop.inspection().takeOpenedURLs().size(), 1);
    window->makeKeyAndOrderFront();
    press(desktop.permission().pageFrame().center());
    EXPECT_EQ(desktop.input().released(MouseButton::left, 0), Target::systemWindow);
    EXPECT_EQ(takeHeard(), u"global 1, global 2"_s);
    EXPECT_FALSE(window->isKeyWindow());
}

} // namespace brimshade::desktop
