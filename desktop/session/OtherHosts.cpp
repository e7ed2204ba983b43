#include "OtherHosts.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFile>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::session {

namespace {

constexpr int kPatience = 2000; // milliseconds
constexpr qsizetype kMostHosts = 32;

bool isHostName(const QString &name)
{
    return name.startsWith("org.kde.StatusNotifierHost-"_L1) || name == "org.kde.plasmashell"_L1
        || name == "org.xfce.Panel"_L1;
}

QString programOf(uint pid)
{
    constexpr qint64 most = 256;
    QFile file(u"/proc/%1/comm"_s.arg(pid));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.read(most)).trimmed() : QString();
}

QDBusMessage busCall(const QString &method)
{
    return QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                                          u"org.freedesktop.DBus"_s, method);
}

} // namespace

OtherHosts::OtherHosts(const QDBusConnection &bus) : m_bus(bus)
{
    m_bus.connect(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s,
                  u"NameOwnerChanged"_s, this, SLOT(ownerChanged(QString)));
    look();
}

void OtherHosts::ownerChanged(const QString &name)
{
    if (isHostName(name))
        look();
}

void OtherHosts::look()
{
    m_needsAnother = m_isLooking;
    if (std::exchange(m_isLooking, true))
        return;
    auto *answer = new QDBusPendingCallWatcher(m_bus.asyncCall(busCall(u"ListNames"_s), kPatience), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<QStringList> names = *answer;
        looked(names.isError() ? QStringList() : names.value());
    });
}

void OtherHosts::looked(const QStringList &names)
{
    QStringList hosts;
    std::ranges::copy_if(names, std::back_inserter(hosts), isHostName);
    hosts = hosts.mid(0, kMostHosts);
    m_found.clear();
    m_open = static_cast<int>(hosts.size()) + 1;
    for (const QString &host : hosts) {
        QDBusMessage question = busCall(u"GetConnectionUnixProcessID"_s);
        question << host;
        auto *answer = new QDBusPendingCallWatcher(m_bus.asyncCall(question, kPatience), this);
        connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
            answer->deleteLater();
            const QDBusPendingReply<uint> pid = *answer;
            const bool isOther = !pid.isError() && pid.value() != uint(QCoreApplication::applicationPid());
            asked(isOther ? programOf(pid.value()) : QString());
        });
    }
    asked({}); // this round's own share of m_open
}

void OtherHosts::asked(const QString &program)
{
    if (!program.isEmpty() && !m_found.contains(program))
        m_found.append(program);
    if (--m_open > 0)
        return;
    m_found.sort();
    if (std::exchange(m_programs, m_found) != m_found)
        Q_EMIT changed();
    m_isLooking = false;
    if (m_needsAnother)
        look();
}

} // namespace brimshade::desktop::session
