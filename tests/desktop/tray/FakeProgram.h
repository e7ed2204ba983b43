#pragma once
#include "WireLayout.h"
#include "desktop/time/VirtualDispatch.h"
#include "support/PrivateBus.h"
#include "support/Waiting.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QSet>
#include <source_location>

namespace brimshade::desktop::tray {

class BusTest : public testing::Test {
protected:
    // Lets messages come until the condition holds. Time passes only for what is due so soon that nobody would notice;
    // for anything longer, like the time limit of an answer, a test must advance the time itself.
    template <typename Condition>
    void waitUntil(const Condition &condition, std::source_location where = std::source_location::current())
    {
        const QDeadlineTimer deadline(kPatience);
        while (!condition())
            step(deadline, where);
    }

    // Waits until the other end has received everything that was sent to it before, and its answers have come. No time
    // passes.
    void settle(const QDBusConnection &from, const QDBusConnection &to);

    VirtualDispatch m_dispatch;
    PrivateBus m_bus;

private:
    void step(const QDeadlineTimer &deadline, const std::source_location &where);
};

// A scripted program with one tray item and one menu. It records what it is asked to do.
class FakeProgram : public QDBusVirtualObject {
    Q_OBJECT
public:
    explicit FakeProgram(const QDBusConnection &connection);

    QVariantMap properties; // of the item
    MenuNode menu; // at /Menu; read again for every answer
    QSet<QString> unknownMethods; // answered like a program that lacks them
    QSet<QString> heldMethods; // answered by answerHeld()
    QSet<QString> lateMethods; // answered as if the time limit had passed
    std::function<void(int id)> onAboutToShow;

    // "Activate 10 37", "AboutToShow 0", "GetLayout 0", "Event 3 clicked", "GetAll", in order
    QStringList calls() const { return m_calls; }
    void note(const QString &what) { m_calls.append(what); } // adds a line of the test's own
    QStringList takeEvents(); // only the events, which are then forgotten

    void registerItem(const QString &argument); // with the current watcher
    void answerHeld();
    void signalItem(const QString &name);
    void signalLayout(int parent);

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;
    QString introspect(const QString &) const override { return {}; }

Q_SIGNALS:
    void called(const QString &what); // in the form of calls()

private:
    void reply(const QDBusMessage &message);
    QVariantList answer(const QDBusMessage &message);

    QDBusConnection m_connection;
    QStringList m_calls;
    std::vector<QDBusMessage> m_held;
};

// One such program and one connection of our own, on a private bus.
class FakeProgramTest : public BusTest {
protected:
    QDBusConnection m_own = m_bus.connection(u"own"_s);
    QDBusConnection m_connection = m_bus.connection(u"program"_s);
    FakeProgram m_program{m_connection};
};

} // namespace brimshade::desktop::tray
