#include "TrayHost.h"

#include "TrayPrograms.h"
#include "desktop/core/Desktop.h"

namespace brimshade::desktop {

using namespace tray;

struct TrayHost::Parts {
    Parts(ConnectToBus connect, platform::Dispatch &dispatch, Surroundings given)
        : surroundings(std::move(given)), workshop(dispatch), bus(std::move(connect), dispatch)
    {
    }

    const Surroundings surroundings;
    Workshop workshop;
    BusLink bus;
    std::unique_ptr<TrayPrograms> programs; // while there is a bus
};

TrayHost::TrayHost(Desktop &desktop, ConnectToBus connect, platform::Dispatch &dispatch, ItemPlaces places,
                   Surroundings surroundings)
    : m_parts(std::make_unique<Parts>(std::move(connect), dispatch, std::move(surroundings)))
{
    QObject::connect(&m_parts->bus, &BusLink::connected, this, [this, &desktop, places](const QDBusConnection &bus) {
        m_parts->programs =
            std::make_unique<TrayPrograms>(desktop, bus, m_parts->workshop, m_parts->surroundings, places);
        QObject::connect(m_parts->programs.get(), &TrayPrograms::message, this, &TrayHost::message);
    });
    QObject::connect(&m_parts->bus, &BusLink::lost, this, [this, &desktop] {
        m_parts->programs.reset();
        const QString text = tr("The session's message bus is gone, and the tray's items with it.");
        desktop.notify(QStringLiteral("Brimshade"), text);
        Q_EMIT message(text);
    });
    QObject::connect(&m_parts->bus, &BusLink::failed, this, [this] {
        Q_EMIT message(QStringLiteral("Tray: there is no session bus; its items come when there is one"));
    });
}

TrayHost::~TrayHost() = default;

QDBusConnection connectToSessionBus(const QString &name)
{
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
}

} // namespace brimshade::desktop
