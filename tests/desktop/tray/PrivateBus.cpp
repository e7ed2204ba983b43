#include "PrivateBus.h"

#include "desktop/tray/BusCall.h"

namespace brimshade::desktop::tray {

PrivateBus::PrivateBus()
{
    m_daemon.start(u"dbus-daemon"_s,
                   {u"--session"_s, u"--nofork"_s, u"--print-address=1"_s});
    while (!m_daemon.canReadLine() && m_daemon.waitForReadyRead())
        ;
    m_address = QString::fromLatin1(m_daemon.readLine()).trimmed();
    EXPECT_FALSE(m_address.isEmpty()) << "no dbus-daemon";
}

PrivateBus::~PrivateBus()
{
    for (const auto &name : std::as_const(m_names))
        QDBusConnection::disconnectFromBus(name);
    m_daemon.terminate();
    m_daemon.waitForFinished();
}

QString PrivateBus::qualified(const QString &name) const
{
    return name + m_address;
}

QDBusConnection PrivateBus::connection(const QString &name)
{
    m_names.insert(qualified(name));
    return QDBusConnection::connectToBus(m_address, qualified(name));
}

void PrivateBus::disconnect(const QString &name)
{
    m_names.remove(qualified(name));
    QDBusConnection::disconnectFromBus(qualified(name));
}

void BusTest::settle(const QDBusConnection &from, const QDBusConnection &to)
{
    bool answered = false;
    QObject context;
    const BusAddress peer{to.baseService(), u"/"_s, u"org.freedesktop.DBus.Peer"_s};
    callAsync(from, peer, u"Ping"_s, {}, &context, [&](const BusReply &) { answered = true; });
    while (!answered)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
}

} // namespace brimshade::desktop::tray
