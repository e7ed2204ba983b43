#include "ItemRegistry.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::tray {

namespace {

constexpr auto kWatcher = "org.kde.StatusNotifierWatcher";
constexpr auto kWatcherPath = "/StatusNotifierWatcher";
constexpr std::size_t kMostItems = 512;
constexpr std::ptrdiff_t kMostItemsOfOneOwner = 128;

QString watcherName()
{
    return QString::fromLatin1(kWatcher);
}

BusAddress watcherAddress(const QString &owner)
{
    return {owner, QString::fromLatin1(kWatcherPath), watcherName()};
}

} // namespace

ItemRegistry::ItemRegistry(const QDBusConnection &bus) : m_bus(bus)
{
    m_owners.setConnection(m_bus);
    m_owners.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    m_owners.addWatchedService(watcherName());
    connect(&m_owners, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &name, const QString &, const QString &owner) { ownerChanged(name, owner); });
    connect(&m_service, &WatcherService::registrationAsked, this, &ItemRegistry::registerItem);
    // Before requesting the name, so that a program that sees the name finds the object complete.
    m_bus.registerObject(QString::fromLatin1(kWatcherPath), &m_service,
                         QDBusConnection::ExportScriptableContents | QDBusConnection::ExportAllProperties);
    findWatcher();
}

ItemRegistry::~ItemRegistry()
{
    notify(m_bus, busDaemon(), u"ReleaseName"_s, {watcherName()});
    m_bus.unregisterObject(QString::fromLatin1(kWatcherPath));
}

// Without flags the bus queues us for the name, and tells everybody when it passes to us.
void ItemRegistry::findWatcher()
{
    callAsync(m_bus, busDaemon(), u"RequestName"_s, {watcherName(), 0U}, this, [this](const BusReply &) {
        callAsync(m_bus, busDaemon(), u"GetNameOwner"_s, {watcherName()}, this, [this](const BusReply &reply) {
            if (reply)
                watcherChanged(reply->value(0).toString());
            else
                Q_EMIT message(u"Tray: the bus does not say who has the watcher's name"_s);
        });
    });
}

void ItemRegistry::watcherChanged(const QString &owner)
{
    if (owner == std::exchange(m_watcher, owner) || owner.isEmpty() || owner == m_bus.baseService())
        return;
    joinForeignWatcher();
}

void ItemRegistry::joinForeignWatcher()
{
    const auto address = watcherAddress(m_watcher);
    m_bus.connect(m_watcher, address.path, address.interface, u"StatusNotifierItemRegistered"_s, this,
                  SLOT(foreignRegistered(QDBusMessage)));
    m_bus.connect(m_watcher, address.path, address.interface, u"StatusNotifierItemUnregistered"_s, this,
                  SLOT(foreignUnregistered(QDBusMessage)));
    const auto host = u"org.kde.StatusNotifierHost-%1"_s.arg(QCoreApplication::applicationPid());
    callAsync(m_bus, busDaemon(), u"RequestName"_s, {host, 0U}, this, [this, host](const BusReply &) {
        callAsync(m_bus, watcherAddress(m_watcher), u"RegisterStatusNotifierHost"_s, {host}, this,
                  [this](const BusReply &) { readForeignItems(); });
    });
}

void ItemRegistry::readForeignItems()
{
    auto properties = watcherAddress(m_watcher);
    properties.interface = u"org.freedesktop.DBus.Properties"_s;
    callAsync(m_bus, properties, u"Get"_s, {watcherName(), u"RegisteredStatusNotifierItems"_s}, this,
              [this](const BusReply &reply) {
                  if (!reply) {
                      Q_EMIT message(u"Tray: the other watcher does not list its items"_s);
                      return;
                  }
                  for (const auto &item : reply->value(0).toStringList())
                      registerItem(item, m_watcher);
              });
}

void ItemRegistry::foreignRegistered(const QDBusMessage &signal)
{
    registerItem(signal.arguments().value(0).toString(), signal.service());
}

void ItemRegistry::foreignUnregistered(const QDBusMessage &signal)
{
    const auto gone = parseRegistration(signal.arguments().value(0).toString(), signal.service());
    dropIf([&](const ItemKey &item, const QString &registeredAs) {
        return gone && item.path == gone->path && (item.owner == gone->service || registeredAs == gone->service);
    });
}

void ItemRegistry::registerItem(const QString &argument, const QString &sender)
{
    if (const auto registration = parseRegistration(argument, sender))
        resolve(*registration, registration->service);
}

// Asks who owns the name, which starts no service. A name is watched before the question, so that we notice if it goes
// away meanwhile; a well-known name therefore takes a second round, for its owner.
void ItemRegistry::resolve(const Registration &registration, const QString &registeredAs)
{
    watch(registration.service);
    callAsync(m_bus, busDaemon(), u"GetNameOwner"_s, {registration.service}, this,
              [this, registration, registeredAs](const BusReply &reply) {
                  const auto owner = reply ? reply->value(0).toString() : QString();
                  if (!isUniqueName(owner))
                      ownerChanged(registration.service, {});
                  else if (owner == registration.service)
                      add({owner, registration.path}, registeredAs);
                  else
                      resolve({owner, registration.path}, registeredAs);
              });
}

void ItemRegistry::watch(const QString &name)
{
    if (!m_owners.watchedServices().contains(name))
        m_owners.addWatchedService(name);
}

void ItemRegistry::add(const ItemKey &key, const QString &registeredAs)
{
    const auto ofOwner =
        std::count_if(m_items.begin(), m_items.end(), [&](const auto &item) { return item.first.owner == key.owner; });
    if (m_items.size() >= kMostItems || ofOwner >= kMostItemsOfOneOwner) {
        if (!std::exchange(m_saidFull, true))
            Q_EMIT message(u"Tray: too many items; only the first ones are shown"_s);
        return;
    }
    if (!m_items.emplace(key, registeredAs).second)
        return;
    m_service.addItem(key.text());
    Q_EMIT added(key);
}

void ItemRegistry::drop(const ItemKey &key)
{
    dropIf([&](const ItemKey &item, const QString &) { return item == key; });
}

void ItemRegistry::ownerChanged(const QString &name, const QString &newOwner)
{
    if (name == watcherName()) {
        watcherChanged(newOwner);
        return;
    }
    if (newOwner.isEmpty())
        m_owners.removeWatchedService(name);
    // A program that releases the name it registered withdraws its item, even if it stays on the bus.
    dropIf([&](const ItemKey &item, const QString &registeredAs) {
        return item.owner != newOwner && (item.owner == name || registeredAs == name);
    });
}

void ItemRegistry::dropIf(const std::function<bool(const ItemKey &, const QString &)> &goes)
{
    std::vector<ItemKey> gone;
    for (const auto &[key, registeredAs] : m_items) {
        if (goes(key, registeredAs))
            gone.push_back(key);
    }
    for (const auto &key : gone) {
        m_items.erase(key);
        m_service.removeItem(key.text());
        Q_EMIT removed(key);
    }
}

} // namespace brimshade::desktop::tray
