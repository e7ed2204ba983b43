#include "TrayHostContext.h"
#include "platform/ItemServices.h"
#include "platform/StatusBar.h"

#include <QSignalSpy>

namespace brimshade::desktop::tray {

using TrayHostTest = TrayHostContext;

TEST_F(TrayHostTest, AnEntryOfAnItemsMenuReachesItsProgram)
{
    const auto program = start(u"relay"_s, u"Relay"_s);
    waitForTitles({u"Relay"_s});
    press(0);
    waitUntil([&] { return isMenuOpen(); });
    EXPECT_EQ(m_desktop.menus().titles(), (QStringList{u"Open"_s, u"Quit"_s}));
    EXPECT_TRUE(m_desktop.menus().choose(u"Open"_s));
    waitUntil([&] { return program->calls().contains(u"Event 0 closed"_s); });
    EXPECT_EQ(program->takeEvents(), (QStringList{u"Event 0 opened"_s, u"Event 1 clicked"_s, u"Event 0 closed"_s}));
    EXPECT_FALSE(isMenuOpen());
}

// The scripted programs have this process's id, as the desktop's own application does.
TEST_F(TrayHostTest, SeveralItemsAreOneApplicationBesideTheOneThatHasTheirProcessId)
{
    const auto before = m_desktop.platform().workspace.runningApplications().size();
    auto first = start(u"first"_s, u"First"_s);
    waitForTitles({u"First"_s});
    auto second = start(u"second"_s, u"Second"_s);
    waitForTitles({u"First"_s, u"Second"_s});
    EXPECT_EQ(m_desktop.platform().workspace.runningApplications().size(), before + 1);
    EXPECT_NE(hostedPid(), m_desktop.platform().workspace.processIdentifier());

    first->properties[u"Title"_s] = u"Renamed"_s;
    first->signalItem(u"NewTitle"_s);
    waitForTitles({u"Renamed"_s, u"Second"_s});
    end(std::move(second), u"second"_s);
    waitForTitles({u"Renamed"_s});
    end(std::move(first), u"first"_s);
    waitForTitles({});
    EXPECT_EQ(m_desktop.platform().workspace.runningApplications().size(), before);
}

TEST_F(TrayHostTest, ItemsAreAsWideAsTheirPictureAndItsPadding)
{
    const auto first = start(u"first"_s, u"First"_s);
    const auto second = start(u"second"_s, u"Second"_s);
    waitUntil([&] { return titles().size() == 2; });
    for (const BarItem &item : m_desktop.menuBar().items())
        EXPECT_EQ(item.frame.width(), 18 + 2 * 8);
}

TEST_F(TrayHostTest, TheOpenMenuOfAProgramThatEndsCloses)
{
    auto program = start(u"short"_s, u"Short"_s);
    waitForTitles({u"Short"_s});
    press(0);
    waitUntil([&] { return isMenuOpen(); });
    end(std::move(program), u"short"_s);
    waitForTitles({});
    EXPECT_FALSE(isMenuOpen());
}

TEST_F(TrayHostTest, AnItemThatHasNothingToSayStandsOffScreenUntilItHas)
{
    auto quiet = start(u"quiet"_s, u"Quiet"_s);
    waitForTitles({u"Quiet"_s});
    const auto frame = [&] { return m_desktop.menuBar().items().front().frame; };
    const auto inTheBar = frame();
    for (const auto &[status, expected] : {std::pair(u"Passive"_s, QRectF(-inTheBar.width(), 0, inTheBar.width(), 37)),
                                           {u"NeedsAttention"_s, inTheBar},
                                           {u"Passive"_s, QRectF(-inTheBar.width(), 0, inTheBar.width(), 37)},
                                           {u"Active"_s, inTheBar}}) {
        quiet->properties[u"Status"_s] = status;
        quiet->signalItem(u"NewStatus"_s);
        waitUntil([&] { return frame() == expected; });
    }
}

TEST_F(TrayHostTest, WhatWantsAttentionIsMarkedAndWhatHidesItIsMarkedOnBrimshadesItem)
{
    const auto own = m_desktop.platform().statusBar.createStatusItem(28);
    const auto program = start(u"urgent"_s, u"Urgent"_s);
    waitForTitles({u"Urgent"_s});
    int told = 0;
    m_desktop.platform().itemServices->observeOffers([&] { ++told; });
    const auto marked = [&] {
        QStringList names;
        for (const BarItem &item : m_desktop.menuBar().items()) {
            if (item.wantsAttention)
                names.append(item.isOwn ? u"own"_s : item.title);
        }
        return names;
    };
    EXPECT_EQ(marked(), QStringList());
    program->properties[u"Status"_s] = u"NeedsAttention"_s;
    program->signalItem(u"NewStatus"_s);
    waitUntil([&] { return marked() == QStringList{u"Urgent"_s}; });
    EXPECT_EQ(told, 1);
    own->setLength(640); // like the divider
    waitUntil([&] { return marked() == (QStringList{u"Urgent"_s, u"own"_s}); });
    program->properties[u"Status"_s] = u"Active"_s;
    program->signalItem(u"NewStatus"_s);
    waitUntil([&] { return marked().isEmpty(); });
}

TEST_F(TrayHostTest, ALabelMakesAnItemAsWideAsItsGuideAndFollowsItsProgram)
{
    const auto program = start(u"weather"_s, u"Weather"_s);
    waitForTitles({u"Weather"_s});
    const auto item = [&] { return m_desktop.menuBar().items().front(); };
    program->properties[u"XAyatanaLabel"_s] = u"9 °C"_s;
    program->properties[u"XAyatanaLabelGuide"_s] = u"-88 °C"_s;
    program->signalItem(u"XAyatanaNewLabel"_s);
    waitUntil([&] { return item().label == u"9 °C"_s && item().frame.width() > 34; });
    const double wide = item().frame.width();
    program->properties[u"XAyatanaLabel"_s] = u"-12 °C"_s;
    program->signalItem(u"XAyatanaNewLabel"_s);
    waitUntil([&] { return item().label == u"-12 °C"_s; });
    EXPECT_EQ(item().frame.width(), wide);
    program->properties.remove(u"XAyatanaLabel"_s);
    program->signalItem(u"XAyatanaNewLabel"_s);
    waitUntil([&] { return item().label.isEmpty() && item().frame.width() == 34; });
}

TEST_F(TrayHostTest, AnItemThatItsProgramHasTakenAwayWithoutAWordGoes)
{
    const auto program = start(u"quiet"_s, u"Quiet"_s);
    waitForTitles({u"Quiet"_s});
    program->unknownMethods = {u"GetAll"_s};
    program->signalItem(u"NewIcon"_s);
    waitForTitles({});
    program->unknownMethods.clear();
    program->registerItem(u"/StatusNotifierItem"_s);
    waitForTitles({u"Quiet"_s});
}

TEST_F(TrayHostTest, WithTheBusTheItemsGoAndComeWithTheNextOne)
{
    QSignalSpy messages(&m_host, &TrayHost::message);
    auto program = start(u"before"_s, u"Before"_s);
    waitForTitles({u"Before"_s});
    press(0);
    waitUntil([&] { return isMenuOpen(); });
    const auto applications = [&] { return m_desktop.platform().workspace.runningApplications().size(); };
    const auto hosted = applications();
    m_bus.end();
    waitForTitles({});
    EXPECT_EQ(applications(), hosted - 1);
    EXPECT_FALSE(isMenuOpen());
    m_dispatch.advance(100); // in vain
    EXPECT_EQ(m_desktop.inspection().takeMessages(),
              QStringList{u"Brimshade: The session's message bus is gone, and the tray's items with it."_s});
    EXPECT_EQ(messages.size(), 1);

    m_bus.startAgain();
    m_dispatch.advance(10); // it tries again from time to time
    waitForWatcher();
    program = start(u"after"_s, u"After"_s);
    waitForTitles({u"After"_s});
    EXPECT_EQ(messages.size(), 1);
}

} // namespace brimshade::desktop::tray
