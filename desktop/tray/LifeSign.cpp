#include "LifeSign.h"

using namespace Qt::StringLiterals;

namespace brimshade::desktop::tray {

LifeSign::LifeSign(const QDBusConnection &bus, const QString &owner, platform::Dispatch &dispatch)
    : m_bus(bus), m_peer{owner, u"/"_s, u"org.freedesktop.DBus.Peer"_s}, m_dispatch(dispatch)
{
}

void LifeSign::ask()
{
    m_isHeard = false;
    listen();
    if (std::exchange(m_isPinging, true))
        return;
    callPatiently(m_bus, m_peer, u"Ping"_s, {}, this, [this](const BusReply &) {
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
