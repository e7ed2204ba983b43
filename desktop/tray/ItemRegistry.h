#pragma once
#include "BusCall.h"
#include "BusName.h"
#include "WatcherService.h"

#include <QDBusServiceWatcher>
#include <QObject>
#include <functional>
#include <map>

class QDBusMessage;

namespace brimshade::desktop::tray {

// Which tray items the session has. It queues for the watcher's name: while another program has it, that program's list
// is followed; when that one goes, the bus passes the name on and programs register here. Main thread.
class ItemRegistry : public QObject {
    Q_OBJECT
public:
    explicit ItemRegistry(const QDBusConnection &bus);
    ~ItemRegistry() override;

    bool contains(const ItemKey &key) const { return m_items.contains(key); }
    void drop(const ItemKey &key); // its program turned out to be gone

Q_SIGNALS:
    void added(const ItemKey &key); // its owner is on the bus
    void removed(const ItemKey &key);
    void message(const QString &text);

private Q_SLOTS:
    void foreignRegistered(const QDBusMessage &signal);
    void foreignUnregistered(const QDBusMessage &signal);

private:
    void findWatcher();
    void watcherChanged(const QString &owner);
    void joinForeignWatcher();
    void readForeignItems();
    void registerItem(const QString &argument, const QString &sender);
    void resolve(const Registration &registration, const QString &registeredAs);
    void watch(const QString &name);
    void add(const ItemKey &key, const QString &registeredAs);
    void ownerChanged(const QString &name, const QString &newOwner);
    void dropIf(const std::function<bool(const ItemKey &, const QString &registeredAs)> &goes);

    QDBusConnection m_bus;
    WatcherService m_service;
    QDBusServiceWatcher m_owners;
    QString m_watcher; // the unique name of the watcher, which may be us
    std::map<ItemKey, QString> m_items; // each with the name under which it was registered
    bool m_saidFull = false;
};

} // namespace brimshade::desktop::tray
