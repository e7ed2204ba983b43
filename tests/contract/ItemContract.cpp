#include "Driver.h"
#include "platform/UserNotifications.h"

using namespace brimshade::platform;

namespace brimshade::contract {

class ItemContract : public Contract {
protected:
    QStringList identities(const std::vector<AXUIElement> &elements)
    {
        QStringList identities;
        for (const AXUIElement &element : elements)
            identities.append(platform.itemServices->identity(element));
        return identities;
    }
};

TEST_F(ItemContract, WhatAnItemIsOutlivesItsProgramAndTellsItFromEveryOther)
{
    ASSERT_TRUE(platform.itemServices) << "a system that knows more about items than Accessibility has these";
    const int pid = driver->launch({{u"clip"_s}, {u"paste"_s}});
    driver->settleMenuBar();
    const auto elements = items(pid);
    const QStringList before = identities(elements);
    ASSERT_EQ(before.size(), 2);
    EXPECT_FALSE(before[0].isEmpty());
    EXPECT_NE(before[0], before[1]);
    driver->quit(pid);
    EXPECT_EQ(identities(elements), QStringList({QString(), QString()}));
    const int again = driver->launch({{u"paste"_s}, {u"clip"_s}});
    driver->settleMenuBar();
    EXPECT_EQ(identities(items(again)), QStringList({before[1], before[0]}));
}

TEST_F(ItemContract, AContextMenuOpensWhereItIsToldTo)
{
    const QRectF screen = platform.screens.screens().at(0).frame;
    const Menu menu{{{.title = u"Entry"_s, .keyEquivalent = {}, .action = {}}}};
    platform.menus.popUpContextMenu(menu, QPointF(screen.x() + 300, maxY(screen) - 200), [] {});
    driver->runDue();
    EXPECT_EQ(driver->openMenu(), QStringList(u"Entry"_s));
    EXPECT_EQ(driver->menuCorner(), QPointF(300, 200));
    driver->dismissMenu();
    driver->movePointer({400, 500});
    platform.menus.popUpContextMenu(menu, {}, [] {});
    EXPECT_EQ(driver->menuCorner(), QPointF(400, 500));
}

TEST_F(ItemContract, APersonIsToldWithoutAWindow)
{
    platform.userNotifications.add(u"Clip"_s, u"It is not running."_s);
    driver->runDue();
    EXPECT_EQ(driver->told(), QStringList(u"Clip: It is not running."_s));
}

} // namespace brimshade::contract
