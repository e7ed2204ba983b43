#include "BusLink.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::tray {

namespace {

constexpr double kFirstPause = 1, kLongestPause = 10; // seconds

QString nextName()
{
    static std::atomic<int> number = 0; // connection names are shared by the whole process
    return u"brimshade.tray.%1"_s.arg(++number);
}

std::shared_ptr<const QDBusConnection> owned(const QDBusConnection &connection)
{
    return {new QDBusConnection(connection), [](const QDBusConnection *bus) {
                const QString name = bus->name();
                delete bus;
                QDBusConnection::disconnectFromBus(name);
            }};
}

} // namespace

BusLink::BusLink(ConnectToBus connect, platform::Dispatch &dispatch)
    : m_connect(std::move(connect)), m_dispatch(dispatch)
{
    open();
}

void BusLink::open()
{
    const auto use = m_lifetime.guard([this](const Connection &connection) { opened(connection); });
    m_dispatch.globalAsync(platform::QualityOfService::utility, [connect = m_connect, use, &dispatch = m_dispatch] {
        dispatch.mainAsync([use, connection = owned(connect(nextName()))] { use(connection); });
    });
}

void BusLink::opened(const Connection &connection)
{
    if (!connection->isConnected()) {
        if (m_pause == 0)
            Q_EMIT failed();
        openLater();
        return;
    }
    m_pause = 0;
    m_connection = connection;
    QDBusConnection bus(*connection);
    bus.connect({}, u"/org/freedesktop/DBus/Local"_s, u"org.freedesktop.DBus.Local"_s, u"Disconnected"_s, this,
                SLOT(disconnected()));
    Q_EMIT connected(bus);
}

void BusLink::disconnected()
{
    Q_EMIT lost();
    m_connection.reset();
    openLater();
}

void BusLink::openLater()
{
    m_pause = std::clamp(2 * m_pause, kFirstPause, kLongestPause);
    m_dispatch.mainAfter(m_pause, m_lifetime.guard([this] { open(); }));
}

} // namespace brimshade::desktop::tray
