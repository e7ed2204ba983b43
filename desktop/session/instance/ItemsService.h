#pragma once
#include "Waiting.h"

#include <QDBusAbstractAdaptor>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <expected>
#include <functional>

namespace brimshade::desktop::session {

struct ListedItem {
    QString name, program;
    bool isHidden = false;
};

QDBusArgument &operator<<(QDBusArgument &to, const ListedItem &item);
const QDBusArgument &operator>>(const QDBusArgument &from, ListedItem &item);

// The items of the bar as the bus sees them, for scripts, key bindings and launchers. Main thread.
class ItemsService : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.brimshade.Brimshade.Items")
public:
    // Both answer later. The error is for the caller of Open.
    struct Actions {
        std::function<void(std::function<void(const QList<ListedItem> &)>)> list;
        std::function<void(const QString &name, std::function<void(const std::expected<void, QString> &)>)> open;
    };
    ItemsService(const QDBusConnection &bus, Waiting &waiting, QObject *of); // waiting outlives it

    void setActions(const Actions &actions) { m_actions = actions; } // call before Waiting::end()

public Q_SLOTS:
    QList<brimshade::desktop::session::ListedItem> List(const QDBusMessage &call);
    void Open(const QString &name, const QDBusMessage &call);

private:
    void answer(const QDBusMessage &call, const Waiting::Work &work); // later

    QDBusConnection m_bus;
    Waiting &m_waiting;
    Actions m_actions;
};

} // namespace brimshade::desktop::session

Q_DECLARE_METATYPE(brimshade::desktop::session::ListedItem)
