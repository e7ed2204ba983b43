#include "Instance.h"

#include "desktop/session/remote/Remote.h"

#include <QDBusConnectionInterface>

namespace brimshade::desktop::session {

Instance::Instance(const QDBusConnection &bus) : m_bus(bus), m_items(new ItemsService(bus, m_waiting, &m_service)) { }

Instance::~Instance()
{
    if (!m_bus.isConnected()) // otherwise Qt follows a null pointer
        return;
    m_bus.unregisterService(QString::fromLatin1(remote::kService));
    m_bus.unregisterObject(QString::fromLatin1(remote::kPath));
}

Instance::Claim Instance::claim()
{
    if (!m_bus.isConnected())
        return Claim::noBus;
    // The object first, because calls come as soon as we have the name.
    m_bus.registerObject(QString::fromLatin1(remote::kPath), &m_service,
                         QDBusConnection::ExportScriptableSlots | QDBusConnection::ExportAdaptors);
    if (m_bus.registerService(QString::fromLatin1(remote::kService)))
        return Claim::ours;
    m_bus.unregisterObject(QString::fromLatin1(remote::kPath));
    return Claim::anothers;
}

void Instance::serve(const ApplicationService::Actions &actions, const ItemsService::Actions &items)
{
    m_service.setActions(actions);
    m_items->setActions(items);
    m_waiting.end();
}

} // namespace brimshade::desktop::session
