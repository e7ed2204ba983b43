#include "desktop/tray/TrayHost.h"
#include "FakeProgram.h"
#include "support/TestDesktop.h"

#include <QDBusConnectionInterface>
#include <QDBusObjectPath>

namespace brimshade::desktop::tray {

class TrayHostTest : public BusTest {
protected:
    TrayHostTest()
    {
        waitUntil([&] {
            const auto names = m_bus.connection(u"asker"_s).interface()->registeredServiceNames().value();
            return names.contains(u"org.kde.StatusNotifierWatcher"_s);
        });
    }

    // A program on a connection of that name, with an item and a menu of two entries.
    std::unique_ptr<FakeProgram> start(const QString &name, const QString &title)
    {
        auto program = std::make_unique<FakeProgram>(m_bus.connection(name));
        program->properties = item(u"item"_s, title);
        program->menu.children = {labelled(1, u"Open"_s), labelled(2, u"Quit"_s)};
        program->registerItem(u"/StatusNotifierItem"_s);
        return program;
    }
    void end(std::unique_ptr<FakeProgram> program, const QString &name)
    {
        program.reset();
        m_bus.disconnect(name);
    }
    static QVariantMap item(const QString &id, const QString &title)
    {
        return {{u"Id"_s, id}, {u"Title"_s, title}, {u"Menu"_s, QVariant::fromValue(QDBusObjectPath(u"/Menu"_s))}};
    }
    // The tray's items in the order in which they came, as "Title" texts.
    QStringList titles()
    {
        QStringList result;
        for (const auto &each : m_desktop.menuBar().items()) {
            if (!each.isOwn)
                result.prepend(each.title);
        }
        return result;
    }
    void waitForTitles(const QStringList &wanted)
    {
        waitUntil([&] { return titles() == wanted; });
    }
    int hostedPid()
    {
        for (const auto &each : m_desktop.menuBar().items()) {
            if (!each.isOwn)
                return each.pid;
        }
        return 0;
    }
    void press(int index)
    {
        auto &accessibility = m_desktop.platform().accessibility;
        const auto bar =
            accessibility.copyAttributeValue(accessibility.createApplication(hostedPid()), u"AXExtrasMenuBar"_s);
        const auto items = accessibility.copyAttributeValue(std::get<platform::AXUIElement>(*bar), u"AXChildren"_s);
        const auto &item = std::get<std::vector<platform::AXUIElement>>(*items).at(static_cast<std::size_t>(index));
        EXPECT_EQ(accessibility.performAction(item, u"AXPress"_s), platform::kAXErrorSuccess);
    }

    FakeSymbols m_symbols;
    Desktop m_desktop{{m_dispatch, m_symbols, nullptr, nullptr}, notchedDesktop({})};
    TrayHost m_host{m_desktop, m_bus.connection(u"own"_s), m_dispatch};
};

TEST_F(TrayHostTest, AnEntryOfAnItemsMenuReachesItsProgram)
{
    const auto program = start(u"relay"_s, u"Relay"_s);
    waitForTitles({u"Relay"_s});
    press(0);
    waitUntil([&] { return m_desktop.menus().openMenu(); });
    EXPECT_EQ(m_desktop.menus().titles(), (QStringList{u"Open"_s, u"Quit"_s}));
    EXPECT_TRUE(m_desktop.menus().choose(u"Open"_s));
    waitUntil([&] { return program->calls().contains(u"Event 0 closed"_s); });
    EXPECT_EQ(program->takeEvents(), (QStringList{u"Event 0 opened"_s, u"Event 1 clicked"_s, u"Event 0 closed"_s}));
    EXPECT_EQ(m_desktop.menus().openMenu(), nullptr);
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
    waitUntil([&] { return m_desktop.menus().openMenu(); });
    end(std::move(program), u"short"_s);
    waitForTitles({});
    EXPECT_EQ(m_desktop.menus().openMenu(), nullptr);
}

} // namespace brimshade::desktop::tray
