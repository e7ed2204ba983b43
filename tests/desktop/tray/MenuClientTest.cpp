#include "desktop/tray/MenuClient.h"
#include "FakeProgram.h"
#include "desktop/tray/TrayMenu.h"

#include <QSignalSpy>

namespace brimshade::desktop::tray {

class MenuClientTest : public FakeProgramTest {
protected:
    MenuClientTest() { m_program.menu.children = {labelled(1, u"Open"_s), labelled(2, u"Quit"_s)}; }

    void make()
    {
        m_client = std::make_unique<MenuClient>(m_own, m_connection.baseService(), u"/Menu"_s, m_workshop, m_life,
                                                m_activation);
        m_ready = std::make_unique<QSignalSpy>(m_client.get(), &MenuClient::ready);
        m_changed = std::make_unique<QSignalSpy>(m_client.get(), &MenuClient::changed);
    }
    void start()
    {
        make();
        waitUntil([&] { return m_program.calls().contains(u"GetLayout 0"_s); });
        settle(m_own, m_connection);
        m_dispatch.runDue();
    }
    void open()
    {
        m_client->open();
        waitUntil([&] { return !m_ready->isEmpty(); });
        m_ready->clear();
    }
    QStringList titles() const
    {
        QStringList result;
        for (const auto &entry : m_client->entries())
            result.append(entry.title);
        return result;
    }

    Workshop m_workshop{m_dispatch};
    LifeSign m_life{m_own, m_connection.baseService(), m_dispatch};
    Surroundings m_surroundings;
    Activation m_activation{
        m_own, {m_connection.baseService(), u"/StatusNotifierItem"_s, {}}, m_surroundings, m_dispatch};
    std::unique_ptr<MenuClient> m_client;
    std::unique_ptr<QSignalSpy> m_ready, m_changed;
};

TEST_F(MenuClientTest, WhatWasReadAheadOpensAtOnce)
{
    start();
    m_client->open();
    EXPECT_EQ(m_ready->size(), 1);
    EXPECT_EQ(titles(), (QStringList{u"Open"_s, u"Quit"_s}));
}

TEST_F(MenuClientTest, AMenuThatIsFilledWhenAskedForIsReadBeforeItOpens)
{
    m_program.menu.children.clear();
    m_program.onAboutToShow = [this](int) { m_program.menu.children = {labelled(5, u"Now"_s)}; };
    start();
    open();
    EXPECT_EQ(titles(), QStringList{u"Now"_s});
}

TEST_F(MenuClientTest, AClosedMenuIsNotReadForAChangeAndAnOldOneIsNotShown)
{
    start();
    m_program.takeEvents();
    m_program.menu.children = {labelled(9, u"New"_s)};
    m_program.signalLayout(0);
    settle(m_connection, m_own);
    m_dispatch.advance(1);
    settle(m_own, m_connection);
    EXPECT_EQ(m_program.calls().filter(u"GetLayout"_s), QStringList());
    open();
    EXPECT_EQ(titles(), QStringList{u"New"_s});
}

TEST_F(MenuClientTest, AMenuThatBecomesOldWhileItIsReadForItsOpeningIsReadAgain)
{
    start();
    m_program.signalLayout(0);
    settle(m_connection, m_own);
    m_program.heldMethods = {u"GetLayout"_s};
    m_client->open();
    waitUntil([&] { return m_program.calls().count(u"GetLayout 0"_s) == 2; });
    m_program.signalLayout(0);
    settle(m_connection, m_own);
    m_program.answerHeld();
    waitUntil([&] { return !m_ready->isEmpty(); });
    EXPECT_EQ(titles(), (QStringList{u"Open"_s, u"Quit"_s}));
    m_program.menu.children = {labelled(9, u"New"_s)};
    waitUntil([&] { return titles() == QStringList{u"New"_s}; });
}

TEST_F(MenuClientTest, AnOpenMenuFollowsItsProgram)
{
    start();
    open();
    TrayMenu menu(*m_client);
    QSignalSpy shown(&menu, &MenuSource::changed);
    m_program.menu.children = {labelled(1, u"Open"_s), labelled(3, u"More"_s), labelled(2, u"Quit"_s)};
    for (int i = 0; i < 20; ++i)
        m_program.signalLayout(0);
    waitUntil([&] { return !shown.isEmpty(); });
    EXPECT_EQ(menu.entries().size(), 3);
    EXPECT_EQ(menu.entries()[1].title, u"More"_s);
    m_client.reset();
    EXPECT_TRUE(menu.entries().empty());
    menu.choose(1); // nobody is there, so nothing happens
    menu.closed();
}

TEST_F(MenuClientTest, ASubmenuIsFilledWhenItOpens)
{
    m_program.menu.children = {labelled(1, u"Recent"_s, {{u"children-display"_s, u"submenu"_s}}),
                               labelled(2, u"Quit"_s)};
    m_program.onAboutToShow = [this](int id) {
        if (id == 1)
            m_program.menu.children[0].children = {labelled(11, u"File"_s)};
    };
    start();
    open();
    TrayMenu menu(*m_client);
    ASSERT_TRUE(menu.entries()[0].hasSubmenu);
    menu.aboutToShow(1);
    waitUntil([&] { return !menu.entries()[0].submenu.empty(); });
    EXPECT_EQ(menu.entries()[0].submenu[0].title, u"File"_s);
    menu.closed();
    settle(m_own, m_connection);
    EXPECT_EQ(m_program.takeEvents(),
              (QStringList{u"Event 0 opened"_s, u"Event 1 opened"_s, u"Event 1 closed"_s, u"Event 0 closed"_s}));
}

TEST_F(MenuClientTest, PicturesAreLookedForOffTheMainThread)
{
    m_program.menu.children = {labelled(1, u"Open"_s, {{u"icon-name"_s, u"anything"_s}})};
    QSignalSpy calls(&m_program, &FakeProgram::called);
    make();
    ASSERT_TRUE(calls.wait());
    settle(m_own, m_connection); // the answer has come; other threads only run in runDue()
    EXPECT_EQ(titles(), QStringList());
    m_dispatch.runDue();
    EXPECT_EQ(titles(), QStringList{u"Open"_s});
}

// Each submenu that is opened brings another one: what fits is shown, with a single message.
TEST_F(MenuClientTest, AnEndlessMenuTreeEnds)
{
    const auto lazy = [](int id) { return labelled(id, u"Deeper"_s, {{u"children-display"_s, u"submenu"_s}}); };
    m_program.menu.children = {lazy(1)};
    m_program.onAboutToShow = [&](int id) {
        if (const auto *node = m_program.menu.find(id); node && id > 0)
            const_cast<MenuNode *>(node)->children = {lazy(id + 1)};
    };
    start();
    open();
    QSignalSpy messages(m_client.get(), &MenuClient::message);
    int deepest = 1;
    for (; messages.isEmpty(); ++deepest) {
        m_client->aboutToShow(deepest);
        waitUntil([&] { return !messages.isEmpty() || depthOf(m_client->entries(), deepest + 1) > 0; });
    }
    EXPECT_EQ(depthOf(m_client->entries(), 12), 12);
    EXPECT_EQ(deepest, 13);
    EXPECT_EQ(messages.size(), 1);
}

TEST_F(MenuClientTest, AProgramWithoutAMenuThereIsUnusable)
{
    m_program.unknownMethods = {u"AboutToShow"_s, u"GetLayout"_s};
    start();
    QSignalSpy unusable(m_client.get(), &MenuClient::unusable);
    m_client->open();
    waitUntil([&] { return !unusable.isEmpty(); });
    EXPECT_EQ(m_ready->size(), 0);
}

TEST_F(MenuClientTest, AProgramThatDoesNotKnowAboutToShowStillHasItsMenu)
{
    m_program.unknownMethods = {u"AboutToShow"_s};
    start();
    m_program.signalLayout(0);
    settle(m_connection, m_own);
    open();
    EXPECT_EQ(titles(), (QStringList{u"Open"_s, u"Quit"_s}));
}

} // namespace brimshade::desktop::tray
