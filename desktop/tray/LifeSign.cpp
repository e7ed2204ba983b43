#include "LifeSign.h"

namespace brimshade::desktop::tray {

LifeSign::LifeSign(const QDBusConnection &bus, const QString &owner, platform::Dispatch &dispatch)
    : m_bus(bus), m_peer{owner, QStringLiteral("/"), QStringLiteral("org.freedesktop.DBus.Peer")}, m_dispatch(dispatch)
{
}

void LifeSign::ask()
{
    m_isHeard = false;
    listen();
    if (std::exchange(m_isPinging, true))
        return;
    callPatiently(m_bus, m_peer, QStringLiteral("Ping"), {}, this, [this](const BusReply &) {
        m_isPinging = false;
        hear();
    });
}

void LifeSign::listen()
{
    if (std::exchange(m_isListening, true))
        return;
    m_dispatch.mainAfter(kAnswerSeconds, m_lifetime.guard([this] {
        m_isListening = false;
        if (!m_isHeard)
            Q_EMIT silent();
    }));
}

void LifeSign::hear()
{
    if (!std::exchange(m_isHeard, true))
        Q_EMIT heard();
}

} // namespace brimshade::desktop::tray
