#include "ItemsService.h"

#include <QDBusError>
#include <QDBusMetaType>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::session {

QDBusArgument &operator<<(QDBusArgument &to, const ListedItem &item)
{
    to.beginStructure();
    to << item.name << item.program << item.isHidden;
    to.endStructure();
    return to;
}

const QDBusArgument &operator>>(const QDBusArgument &from, ListedItem &item)
{
    from.beginStructure();
    from >> item.name >> item.program >> item.isHidden;
    from.endStructure();
    return from;
}

ItemsService::ItemsService(const QDBusConnection &bus, QObject *of) : QDBusAbstractAdaptor(of), m_bus(bus)
{
    qDBusRegisterMetaType<ListedItem>();
    qDBusRegisterMetaType<QList<ListedItem>>();
}

QList<ListedItem> ItemsService::List(const QDBusMessage &call)
{
    call.setDelayedReply(true);
    if (isReady(call)) {
        m_actions.list([bus = m_bus, call](const QList<ListedItem> &items) {
            bus.send(call.createReply(QVariant::fromValue(items)));
        });
    }
    return {}; // nobody sees it: the answer is on its way
}

void ItemsService::Open(const QString &name, const QDBusMessage &call)
{
    call.setDelayedReply(true);
    if (isReady(call)) {
        m_actions.open(name, [bus = m_bus, call](const std::expected<void, QString> &opened) {
            bus.send(opened ? call.createReply() : call.createErrorReply(QDBusError::InvalidArgs, opened.error()));
        });
    }
}

bool ItemsService::isReady(const QDBusMessage &call)
{
    if (!m_actions.list)
        m_bus.send(call.createErrorReply(QDBusError::Failed, u"Brimshade is starting"_s));
    return bool(m_actions.list);
}

} // namespace brimshade::desktop::session
