#include "FakeProgram.h"
#include "desktop/tray/ItemRegistry.h"

#include <QSignalSpy>

namespace brimshade::desktop::tray {

const auto kWatcher = u"org.kde.StatusNotifierWatcher"_s;

class RegistryTest : public BusTest {
protected:
    // A registry that follows the bus on a connection of its own.
    void start()
    {
        m_registry = std::make_unique<ItemRegistry>(m_own);
        QObject::connect(m_registry.get(), &ItemRegistry::added,
                         [this](const ItemKey &key) { m_events += u"+"_s + key.text(); });
        QObject::connect(m_registry.get(), &ItemRegistry::removed,
                         [this](const ItemKey &key) { m_events += u"-"_s + key.text(); });
    }
    void startAsWatcher()
    {
        start();
        waitUntil([&] { return ownerOf(kWatcher) == m_own.baseService(); });
    }
    QString ownerOf(const QString &name)
    {
        QString owner;
        bool answered = false;
        QObject context;
        callAsync(m_bus.connection(u"asker"_s), busDaemon(), u"GetNameOwner"_s, {name}, &context,
                  [&](const BusReply &reply) {
                      owner = reply ? reply->value(0).toString() : QString();
                      answered = true;
                  });
        waitUntil([&] { return answered; });
        return owner;
    }
    QStringList waitForEvents(int count)
    {
        waitUntil([&] { return m_events.size() >= count; });
        return std::exchange(m_events, {});
    }

    QDBusConnection m_own = m_bus.connection(u"own"_s);
    std::unique_ptr<ItemRegistry> m_registry;
    QStringList m_events;
};

TEST_F(RegistryTest, HearsEveryFormOfRegistration)
{
    startAsWatcher();
    auto connection = m_bus.connection(u"program"_s);
    const auto name = connection.baseService();
    const auto other = m_bus.connection(u"other"_s).baseService();
    connection.registerService(u"org.kde.StatusNotifierItem-5-1"_s);
    FakeProgram program(connection);

    const std::tuple<QString, QString> rows[] = {
        {u"/org/item"_s, name + u"/org/item"_s},
        {name, name + u"/StatusNotifierItem"_s},
        {other, other + u"/StatusNotifierItem"_s},
        {u"org.kde.StatusNotifierItem-5-1/named"_s, name + u"/named"_s},
    };
    for (const auto &[argument, event] : rows) {
        program.registerItem(argument);
        EXPECT_EQ(waitForEvents(1), QStringList{u"+"_s + event});
    }
    program.registerItem(u"org.kde.StatusNotifierItem-5-1"_s); // the second one again, by another name
    program.registerItem(u"org.nobody.has.This"_s);
    program.registerItem(u"/last"_s);
    EXPECT_EQ(waitForEvents(1), QStringList{u"+"_s + name + u"/last"_s});
}

TEST_F(RegistryTest, DropsTheItemsOfAProgramThatLeavesOrLetsItsNameGo)
{
    startAsWatcher();
    auto leaving = m_bus.connection(u"leaving"_s);
    auto staying = m_bus.connection(u"staying"_s);
    const auto left = leaving.baseService(), stayed = staying.baseService();
    staying.registerService(u"org.kde.StatusNotifierItem-7-1"_s);
    FakeProgram(leaving).registerItem(u"/a"_s);
    waitForEvents(1);
    FakeProgram(staying).registerItem(u"org.kde.StatusNotifierItem-7-1"_s);
    waitForEvents(1);

    leaving = staying;
    m_bus.disconnect(u"leaving"_s);
    EXPECT_EQ(waitForEvents(1), QStringList{u"-"_s + left + u"/a"_s});
    staying.unregisterService(u"org.kde.StatusNotifierItem-7-1"_s);
    EXPECT_EQ(waitForEvents(1), QStringList{u"-"_s + stayed + u"/StatusNotifierItem"_s});
}

TEST_F(RegistryTest, RefusesWhatNamesNoItem)
{
    startAsWatcher();
    QObject context;
    QString error;
    callAsync(m_bus.connection(u"program"_s), {kWatcher, u"/StatusNotifierWatcher"_s, kWatcher},
              u"RegisterStatusNotifierItem"_s, {u"no name"_s}, &context,
              [&](const BusReply &reply) { error = reply ? u"accepted"_s : reply.error().name; });
    waitUntil([&] { return !error.isEmpty(); });
    EXPECT_EQ(error, u"org.freedesktop.DBus.Error.InvalidArgs"_s);
}

TEST_F(RegistryTest, OneProgramCannotFillTheBar)
{
    startAsWatcher();
    QSignalSpy messages(m_registry.get(), &ItemRegistry::message);
    FakeProgram program(m_bus.connection(u"program"_s));
    for (int i = 0; i < 140; ++i)
        program.registerItem(u"/item/%1"_s.arg(i));
    FakeProgram modest(m_bus.connection(u"modest"_s));
    modest.registerItem(u"/item"_s);
    EXPECT_EQ(waitForEvents(129).size(), 129);
    EXPECT_EQ(messages.size(), 1);
}

TEST_F(RegistryTest, FollowsAnotherWatcherAndTakesOverWhenItGoes)
{
    auto foreign = m_bus.connection(u"foreign"_s);
    WatcherService service;
    foreign.registerObject(u"/StatusNotifierWatcher"_s, &service,
                           QDBusConnection::ExportScriptableContents | QDBusConnection::ExportAllProperties);
    QSignalSpy hosts(&service, &WatcherService::StatusNotifierHostRegistered);
    ASSERT_TRUE(foreign.registerService(kWatcher));
    const auto program = m_bus.connection(u"program"_s);
    const auto name = program.baseService();
    service.addItem(name + u"/early"_s);

    start();
    EXPECT_EQ(waitForEvents(1), QStringList{u"+"_s + name + u"/early"_s});
    EXPECT_EQ(hosts.size(), 1);
    EXPECT_EQ(ownerOf(u"org.kde.StatusNotifierHost-%1"_s.arg(QCoreApplication::applicationPid())), m_own.baseService());
    service.addItem(name + u"/late"_s);
    EXPECT_EQ(waitForEvents(1), QStringList{u"+"_s + name + u"/late"_s});
    service.removeItem(name + u"/early"_s);
    EXPECT_EQ(waitForEvents(1), QStringList{u"-"_s + name + u"/early"_s});

    foreign.unregisterService(kWatcher);
    EXPECT_EQ(ownerOf(kWatcher), m_own.baseService());
    FakeProgram(program).registerItem(u"/after"_s);
    EXPECT_EQ(waitForEvents(1), QStringList{u"+"_s + name + u"/after"_s});
}

} // namespace brimshade::desktop::tray
