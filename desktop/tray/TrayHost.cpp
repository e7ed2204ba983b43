#include "TrayHost.h"

#include "BusItems.h"
#include "TrayPrograms.h"
#include "desktop/core/Desktop.h"

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

using namespace tray;

struct TrayHost::Parts {
    Parts(Desktop &desktop, ConnectToBus connect, platform::Dispatch &dispatch, ItemPlaces places, Surroundings given)
        : surroundings(std::move(given)), workshop(dispatch), programs(desktop, workshop, places),
          bus(std::move(connect), dispatch)
    {
    }

    const Surroundings surroundings;
    Workshop workshop;
    TrayPrograms programs;
    BusLink bus;
    std::unique_ptr<BusItems> items; // while there is a bus
};

TrayHost::TrayHost(Desktop &desktop, ConnectToBus connect, platform::Dispatch &dispatch, ItemPlaces places,
                   Surroundings surroundings)
    : m_parts(std::make_unique<Parts>(desktop, std::move(connect), dispatch, places, std::move(surroundings)))
{
    QObject::connect(&m_parts->bus, &BusLink::connected, this, [this, &desktop](const QDBusConnection &bus) {
        m_parts->items =
            std::make_unique<BusItems>(desktop, bus, m_parts->programs, m_parts->workshop, m_parts->surroundings);
        QObject::connect(m_parts->items.get(), &BusItems::message, this, &TrayHost::message);
    });
    QObject::connect(&m_parts->bus, &BusLink::lost, this, [this, &desktop] {
        m_parts->items.reset();
        const QString text = tr("The session's message bus is gone, and the tray's items with it.");
        desktop.notify(u"Brimshade"_s, text);
        Q_EMIT message(text);
    });
    QObject::connect(&m_parts->bus, &BusLink::failed, this,
                     [this] { Q_EMIT message(u"Tray: there is no session bus; items appear once there is one"_s); });
}

TrayHost::~TrayHost() = default;

TrayPrograms &TrayHost::programs()
{
    return m_parts->programs;
}

QDBusConnection connectToSessionBus(const QString &name)
{
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
}

} // namespace brimshade::desktop
