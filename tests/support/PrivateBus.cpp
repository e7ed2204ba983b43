#include "PrivateBus.h"

namespace brimshade {

namespace {

// Everybody may own any name and send anything, as on a session's bus.
const char *const kConfiguration = R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>%1</listen>
  <auth>EXTERNAL</auth>
  %2
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

} // namespace

PrivateBus::PrivateBus(const QString &serviceFolder)
{
    const QString services = serviceFolder.isEmpty() ? QString() : u"<servicedir>%1</servicedir>"_s.arg(serviceFolder);
    writeFile(m_folder.filePath(u"bus.conf"_s), QString::fromLatin1(kConfiguration).arg(m_address, services).toUtf8());
    start();
}

PrivateBus::~PrivateBus()
{
    end();
}

void PrivateBus::start()
{
    m_daemon.start(u"dbus-daemon"_s,
                   {u"--config-file="_s + m_folder.filePath(u"bus.conf"_s), u"--nofork"_s, u"--print-address=1"_s});
    while (!m_daemon.canReadLine() && m_daemon.waitForReadyRead())
        ;
    EXPECT_FALSE(m_daemon.readLine().isEmpty()) << "no dbus-daemon";
}

void PrivateBus::end()
{
    m_daemon.terminate();
    m_daemon.waitForFinished();
    for (const auto &name : std::exchange(m_names, {}))
        QDBusConnection::disconnectFromBus(name);
}

void PrivateBus::startAgain()
{
    QFile::remove(m_folder.filePath(u"bus"_s));
    start();
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

} // namespace brimshade
