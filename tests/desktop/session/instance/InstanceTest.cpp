#include "desktop/session/instance/Instance.h"
#include "support/PrivateBus.h"
#include "support/Waiting.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcessEnvironment>
#include <QXmlStreamReader>

namespace brimshade::desktop::session {

using testing::ElementsAre;

const QString kService = u"org.brimshade.Brimshade"_s;
const QString kPath = u"/org/brimshade/Brimshade"_s;
const QString kInterface = u"org.freedesktop.Application"_s;

class InstanceTest : public testing::Test {
protected:
    InstanceTest()
    {
        writeFile(folder.filePath(u"org.brimshade.Brimshade.service"_s),
                  "[D-BUS Service]\nName=org.brimshade.Brimshade\nExec=/bin/sh -c 'touch " + started().toUtf8()
                      + "; exit 1'\n");
    }

    QString started() const { return folder.filePath(u"started"_s); }
    void run()
    {
        EXPECT_EQ(instance.claim(), Instance::Claim::ours);
        instance.serve({.openPanel = [this] { done << u"open"_s; },
                        .togglePanel = [this] { done << u"toggle"_s; },
                        .openSettings = [this] { done << u"settings"_s; },
                        .quit = [this] { done << u"quit"_s; }},
                       {.list = [this](const auto &give) { later([this, give] { give(items); }); },
                        .open =
                            [this](const QString &name, const auto &then) {
                                done << u"open "_s + name;
                                later([then] { then(std::unexpected(u"no item is named so"_s)); });
                            }});
    }
    void later(const std::function<void()> &work) { QMetaObject::invokeMethod(qApp, work, Qt::QueuedConnection); }
    // The answer to a call from another program of the session.
    QDBusMessage call(const QString &interface, const QString &method, const QVariantList &arguments)
    {
        auto message = QDBusMessage::createMethodCall(kService, kPath, interface, method);
        message.setArguments(arguments);
        QDBusPendingCallWatcher watcher(bus.connection(u"other"_s).asyncCall(message));
        bool isFinished = false;
        QObject::connect(&watcher, &QDBusPendingCallWatcher::finished, [&] { isFinished = true; });
        waitFor(u"an answer to "_s + method, [&] { return isFinished; });
        QCoreApplication::processEvents(); // runs what is done after the answer
        return watcher.reply();
    }
    QDBusMessage activateAction(const QString &name, const QVariantList &parameter = {})
    {
        return call(kInterface, u"ActivateAction"_s, {name, parameter, QVariantMap()});
    }
    // The exit status of the command that people type, and its standard error or its standard output.
    std::pair<int, QString> launch(const QString &option) { return launch(QStringList{option}); }
    std::pair<int, QString> launch(const QStringList &options)
    {
        QProcess launcher;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus.address());
        launcher.setProcessEnvironment(environment);
        launcher.start(QStringLiteral(BRIMSHADE_LAUNCHER), options);
        waitFor(u"the end of the launcher"_s, [&] { return launcher.state() == QProcess::NotRunning; });
        QCoreApplication::processEvents();
        const auto output = launcher.readAllStandardOutput();
        return {launcher.exitCode(), QString::fromUtf8(launcher.readAllStandardError() + output)};
    }

    QTemporaryDir folder;
    PrivateBus bus{folder.path()};
    Instance instance{bus.connection(u"own"_s)};
    QStringList done;
    QList<ListedItem> items;
};

TEST_F(InstanceTest, OneProgramIsTheSessionsUntilItEnds)
{
    Instance second(bus.connection(u"second"_s));
    {
        Instance first(bus.connection(u"first"_s));
        EXPECT_EQ(first.claim(), Instance::Claim::ours);
        EXPECT_EQ(second.claim(), Instance::Claim::anothers);
    }
    EXPECT_EQ(second.claim(), Instance::Claim::ours);
    EXPECT_EQ(Instance(QDBusConnection(u"no such connection"_s)).claim(), Instance::Claim::noBus);
}

TEST_F(InstanceTest, DoesWhatIsAskedForInTurn)
{
    run();
    EXPECT_EQ(call(kInterface, u"Activate"_s, {QVariantMap{{u"desktop-startup-id"_s, u"x"_s}}}).type(),
              QDBusMessage::ReplyMessage);
    for (const QString &action : {u"toggle"_s, u"settings"_s, u"quit"_s})
        EXPECT_EQ(activateAction(action).type(), QDBusMessage::ReplyMessage);
    EXPECT_THAT(done, ElementsAre(u"open"_s, u"toggle"_s, u"settings"_s, u"quit"_s));
}

// The bus starts the program for a call, and the program takes the name before it can do anything.
TEST_F(InstanceTest, DoesWhatWasAskedForWhileItStartedOnceItCan)
{
    EXPECT_EQ(instance.claim(), Instance::Claim::ours);
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(activateAction(u"toggle"_s).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(activateAction(u"toggle"_s).errorMessage(), u"Brimshade is starting"_s);
    EXPECT_THAT(done, ElementsAre());
    run();
    EXPECT_EQ(activateAction(u"settings"_s).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(done.size(), 17u);
    EXPECT_EQ(done.front(), u"toggle"_s);
}

TEST_F(InstanceTest, RefusesWhatItCannotDo)
{
    run();
    EXPECT_EQ(call(kInterface, u"Open"_s, {QStringList{u"file:///x"_s}, QVariantMap()}).errorMessage(),
              u"Brimshade opens no files"_s);
    EXPECT_EQ(activateAction(u"Quit"_s).errorMessage(), u"no such action; the actions are toggle, settings and quit"_s);
    EXPECT_EQ(activateAction(u"quit"_s, {1}).errorMessage(), u"actions take no parameter"_s);
    EXPECT_EQ(call(kInterface, u"ActivateAction"_s, {u"quit"_s}).type(), QDBusMessage::ErrorMessage);
    EXPECT_THAT(done, ElementsAre());
}

TEST_F(InstanceTest, TellsWhatCanBeAskedFor)
{
    run();
    const QDBusMessage answer = call(u"org.freedesktop.DBus.Introspectable"_s, u"Introspect"_s, {});
    QXmlStreamReader xml(answer.arguments().value(0).toString());
    QStringList methods;
    QString interface;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == u"interface")
            interface = xml.attributes().value("name"_L1).toString();
        else if (xml.isStartElement() && interface == kInterface && xml.name() == u"method")
            methods << xml.attributes().value("name"_L1).toString() + u' ';
        else if (xml.isStartElement() && interface == kInterface && xml.name() == u"arg")
            methods.last() += xml.attributes().value("type"_L1).toString();
    }
    EXPECT_THAT(methods, ElementsAre(u"Activate a{sv}"_s, u"Open asa{sv}"_s, u"ActivateAction sava{sv}"_s));
}

TEST_F(InstanceTest, TheCommandsReachTheOneThatRuns)
{
    run();
    for (const QString &option : {u"--toggle"_s, u"--settings"_s, u"--quit"_s})
        EXPECT_EQ(launch(option), std::pair(0, QString())) << qPrintable(option);
    EXPECT_THAT(done, ElementsAre(u"toggle"_s, u"settings"_s, u"quit"_s));
}

TEST_F(InstanceTest, PrintsTheItemsForPeopleAndForScripts)
{
    items = {{u"Läufer"_s, u"Sport"_s, false}, {u"\"x\"\n"_s, u"a\\b"_s, true}};
    EXPECT_EQ(launch({u"--list"_s, u"--json"_s}).second,
              u"brimshade: none runs in this session; start one with: "
              "brimshade --session\n"_s);
    run();
    const auto [status, json] = launch({u"--list"_s, u"--json"_s});
    EXPECT_EQ(status, 0);
    const QJsonArray read = QJsonDocument::fromJson(json.toUtf8()).array();
    ASSERT_EQ(read.size(), 2);
    EXPECT_EQ(read[0], (QJsonObject{{u"name"_s, u"Läufer"_s}, {u"program"_s, u"Sport"_s}, {u"side"_s, u"visible"_s}}));
    EXPECT_EQ(read[1], (QJsonObject{{u"name"_s, u"\"x\"\n"_s}, {u"program"_s, u"a\\b"_s}, {u"side"_s, u"hidden"_s}}));
    items.removeLast();
    EXPECT_EQ(launch(u"--list"_s).second, u"NAME    PROGRAM  SIDE\nLäufer  Sport    visible\n"_s);
    items.clear();
    EXPECT_EQ(QJsonDocument::fromJson(launch({u"--list"_s, u"--json"_s}).second.toUtf8()), QJsonDocument(QJsonArray()));
}

TEST_F(InstanceTest, OpensAnItemByItsNameAndSaysWhyNot)
{
    run();
    EXPECT_EQ(launch({u"--open"_s, u"Läufer"_s}), std::pair(1, u"brimshade: no item is named so\n"_s));
    EXPECT_THAT(done, ElementsAre(u"open Läufer"_s));
}

TEST_F(InstanceTest, TheCommandsSayHowToStartOneAndStartNone)
{
    for (const QString &option : {u"--toggle"_s, u"--settings"_s, u"--quit"_s})
        EXPECT_EQ(launch(option),
                  std::pair(1, u"brimshade: none runs in this session; start one with: brimshade --session\n"_s));
    EXPECT_FALSE(QFile::exists(started()));
    // Another kind of call would have made the bus start one.
    call(kInterface, u"Activate"_s, {QVariantMap()});
    EXPECT_TRUE(QFile::exists(started()));
}

} // namespace brimshade::desktop::session
