#pragma once
#include "desktop/time/VirtualDispatch.h"
#include "support/Test.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QEventLoop>
#include <QSet>

namespace brimshade::desktop::tray {

// A message bus that nobody else is on. Connections made here are closed with it.
class PrivateBus {
public:
    PrivateBus();
    ~PrivateBus();

    QDBusConnection connection(const QString &name);
    void disconnect(const QString &name);

private:
    QString qualified(const QString &name) const;

    QProcess m_daemon;
    QString m_address;
    QSet<QString> m_names;
};

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

} // namespace brimshade::desktop::tray
