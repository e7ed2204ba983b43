#pragma once
#include "WireLayout.h"
#include "desktop/time/VirtualDispatch.h"
#include "support/PrivateBus.h"

#include <QCoreApplication>
#include <QDBusVirtualObject>
#include <QEventLoop>
#include <QSet>

namespace brimshade::desktop::tray {

class BusTest : public testing::Test {
protected:
    // Lets messages come and time pass until the condition holds; ctest's time limit ends one that never does.
    template <typename Condition> void waitUntil(const Condition &condition)
    {
        constexpr double step = 0.25; // more than any delay here, the bar's layout included
        for (m_dispatch.advance(step); !condition(); m_dispatch.advance(step))
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }

    // Until the other end has got everything that was sent to it before, and its answers came. No time passes.
    void settle(const QDBusConnection &from, const QDBusConnection &to);

    VirtualDispatch m_dispatch;
    PrivateBus m_bus;
};

// A scripted program with one tray item and one menu. It notes what it is asked to do.
class FakeProgram : public QDBusVirtualObject {
    Q_OBJECT
public:
    explicit FakeProgram(const QDBusConnection &connection);

    QVariantMap properties; // of the item
    MenuNode menu; // at /Menu; read anew for every answer
    QSet<QString> unknownMethods; // answered as a program that lacks them does
    std::function<void(int id)> onAboutToShow;

    // "Activate 10 37", "AboutToShow 0", "GetLayout 0", "Event 3 clicked", "GetAll", in order
    QStringList calls() const { return m_calls; }
    QStringList takeEvents(); // only the events, and forgets them

    void registerItem(const QString &argument); // with whoever is the watcher
    void signalItem(const QString &name);
    void signalLayout(int parent);

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;
    QString introspect(const QString &) const override { return {}; }

private:
    QVariantList answer(const QDBusMessage &message);

    QDBusConnection m_connection;
    QStringList m_calls;
};

// One such program and a connection of ours, on a bus of their own.
class FakeProgramTest : public BusTest {
protected:
    QDBusConnection m_own = m_bus.connection(u"own"_s);
    QDBusConnection m_connection = m_bus.connection(u"program"_s);
    FakeProgram m_program{m_connection};
};

} // namespace brimshade::desktop::tray
