#include "WatcherService.h"

#include "BusName.h"

#include <QDBusMessage>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::tray {

void WatcherService::addItem(const QString &item)
{
    if (m_items.contains(item))
        return;
    m_items.append(item);
    Q_EMIT StatusNotifierItemRegistered(item);
}

void WatcherService::removeItem(const QString &item)
{
    if (m_items.removeAll(item) > 0)
        Q_EMIT StatusNotifierItemUnregistered(item);
}

void WatcherService::RegisterStatusNotifierItem(const QString &argument)
{
    if (!parseRegistration(argument, message().service())) {
        sendErrorReply(QDBusError::InvalidArgs, u"expected a bus name or an object path"_s);
        return;
    }
    Q_EMIT registrationAsked(argument, message().service());
}

void WatcherService::RegisterStatusNotifierHost(const QString &)
{
    Q_EMIT StatusNotifierHostRegistered(); // this program is a host already; another one changes nothing
}

} // namespace brimshade::desktop::tray
