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

ItemsService::ItemsService(const QDBusConnection &bus, Waiting &waiting, QObject *of)
    : QDBusAbstractAdaptor(of), m_bus(bus), m_waiting(waiting)
{
    qDBusRegisterMetaType<ListedItem>();
    qDBusRegisterMetaType<QList<ListedItem>>();
}

QList<ListedItem> ItemsService::List(const QDBusMessage &call)
{
    answer(call, [this, call] {
        m_actions.list([bus = m_bus, call](const QList<ListedItem> &items) {
            bus.send(call.createReply(QVariant::fromValue(items)));
        });
    });
    return {}; // not sent: the real answer comes later
}

void ItemsService::Open(const QString &name, const QDBusMessage &call)
{
    answer(call, [this, name, call] {
        m_actions.open(name, [bus = m_bus, call](const std::expected<void, QString> &opened) {
            bus.send(opened ? call.createReply() : call.createErrorReply(QDBusError::InvalidArgs, opened.error()));
        });
    });
}

void ItemsService::answer(const QDBusMessage &call, const Waiting::Work &work)
{
    call.setDelayedReply(true);
    if (!m_waiting.run(work))
        m_bus.send(call.createErrorReply(QDBusError::LimitsExceeded, u"Brimshade is starting"_s));
}

} // namespace brimshade::desktop::session
