#include "Driver.h"

using namespace brimshade::platform;

namespace brimshade::contract {

class StatusItemContract : public Contract {
protected:
    QPointF middle() { return toDisplay(item->button()->window()->frame().center()); }

    std::shared_ptr<StatusItem> item = platform.statusBar.createStatusItem(28);
};

TEST_F(StatusItemContract, IsAsLongAsItSaysOnceTheBarHasSettled)
{
    item->setAutosaveName(u"Contract"_s);
    driver->settleMenuBar();
    ASSERT_TRUE(item->button());
    Window *window = item->button()->window();
    ASSERT_TRUE(window);
    EXPECT_EQ(window->frame().width(), 28);
    const double right = maxX(window->frame());
    const auto screen = window->screen();
    ASSERT_TRUE(screen);
    EXPECT_EQ(maxY(window->frame()), maxY(screen->frame)) << "in the menu bar";
    EXPECT_TRUE(window->occlusionStateVisible());
    item->setLength(100);
    EXPECT_EQ(item->length(), 100);
    driver->settleMenuBar();
    EXPECT_EQ(item->button()->window(), window) << "one item, one window";
    EXPECT_EQ(window->frame().width(), 100);
    EXPECT_EQ(maxX(window->frame()), right) << "it grows to the left";
    item->setLength(kSquareStatusItemLength);
    EXPECT_EQ(item->length(), kSquareStatusItemLength);
}

TEST_F(StatusItemContract, SendsItsActionOnTheEventsOfTheMask)
{
    std::vector<std::optional<NSEventType>> types;
    item->button()->setAction(kLeftMouseUpMask | kRightMouseUpMask,
                              [&] { types.push_back(platform.application.currentEventType()); });
    int outside = 0;
    platform.application.addGlobalMonitor(kLeftMouseDownMask | kRightMouseDownMask, [&](const Event &) { ++outside; });
    driver->settleMenuBar();
    driver->click(middle());
    driver->click(middle(), true);
    EXPECT_EQ(types, (std::vector<std::optional<NSEventType>>{leftMouseUp, rightMouseUp}));
    EXPECT_EQ(outside, 0) << "a press on it is not one in another application";
}

TEST_F(StatusItemContract, SendsNoActionForAPressThatEndsOrBeganElsewhere)
{
    int actions = 0;
    item->button()->setAction(kLeftMouseUpMask, [&] { ++actions; });
    driver->settleMenuBar();
    driver->drag(middle(), emptySpot());
    driver->drag(emptySpot(), middle());
    EXPECT_EQ(actions, 0);
}

TEST_F(StatusItemContract, OpensAnAttachedMenuInsteadAndTellsWhenItIsGone)
{
    std::string order;
    item->button()->setAction(kLeftMouseUpMask, [&] { order += 'a'; });
    driver->settleMenuBar();
    Menu menu{{{.title = u"Settings…"_s, .keyEquivalent = u","_s, .action = [&] { order += 's'; }},
               MenuItem::separator(),
               {.title = u"Off"_s, .keyEquivalent = {}, .isEnabled = false, .action = [&] { order += 'o'; }}}};
    item->setMenu(menu);
    item->button()->performClick([&] { order += 'd'; });
    EXPECT_EQ(driver->openMenu(), QStringList({u"Settings…"_s, u"-"_s, u"Off"_s}));
    EXPECT_EQ(order, "");
    driver->choose(u"Off"_s);
    EXPECT_EQ(order, "") << "a disabled entry cannot be chosen";
    driver->choose(u"Settings…"_s);
    EXPECT_EQ(order, "sd") << "the action first";
    EXPECT_TRUE(driver->openMenu().isEmpty());
    item->setMenu(std::nullopt);
    driver->click(middle());
    EXPECT_EQ(order, "sda");
}

TEST_F(StatusItemContract, AContextMenuDismissesTheOneBefore)
{
    std::string order;
    const auto menu = [&](char name) {
        return Menu{
            {{.title = QChar::fromLatin1(name), .keyEquivalent = {}, .action = [&order, name] { order += name; }}}};
    };
    platform.menus.popUpContextMenu(menu('a'), {}, [&] { order += '1'; });
    platform.menus.popUpContextMenu(menu('b'), {}, [&] { order += '2'; });
    EXPECT_EQ(order, "1");
    EXPECT_EQ(driver->openMenu(), QStringList(u"b"_s));
    driver->choose(u"b"_s);
    EXPECT_EQ(order, "1b2");
    platform.menus.popUpContextMenu(menu('c'), {}, [&] { order += '3'; });
    driver->dismissMenu();
    EXPECT_EQ(order, "1b23");
}

TEST_F(StatusItemContract, LeavesTheBarWhenItIsDestroyed)
{
    driver->settleMenuBar();
    const QPointF at = middle();
    int outside = 0;
    platform.application.addGlobalMonitor(kLeftMouseDownMask, [&](const Event &) { ++outside; });
    item.reset();
    driver->settleMenuBar();
    driver->click(at);
    EXPECT_EQ(outside, 1);
}

} // namespace brimshade::contract
