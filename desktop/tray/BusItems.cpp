#include "BusItems.h"

#include "TrayMenu.h"
#include "TrayPrograms.h"
#include "desktop/core/Desktop.h"
#include "desktop/core/MenuHost.h"
#include "platform/Weakly.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::tray {

BusItems::BusItems(Desktop &desktop, const QDBusConnection &bus, TrayPrograms &programs, const Workshop &workshop,
                   const Surroundings &surroundings)
    : m_desktop(desktop), m_bus(bus), m_programs(programs), m_workshop(workshop), m_surroundings(surroundings),
      m_registry(bus)
{
    connect(&m_registry, &ItemRegistry::added, this, &BusItems::add);
    connect(&m_registry, &ItemRegistry::removed, this, &BusItems::remove);
    connect(&m_registry, &ItemRegistry::message, this, &BusItems::message);
    connect(&m_desktop, &Desktop::acted, this, &BusItems::lapsePresses);
}

BusItems::~BusItems()
{
    for (const Item &item : m_items)
        m_programs.remove(item.pid, item.client->key().text());
}

void BusItems::add(const ItemKey &key)
{
    callAsync(m_bus, busDaemon(), u"GetConnectionUnixProcessID"_s, {key.owner}, this,
              [this, key](const BusReply &reply) {
                  if (reply)
                      place(key, reply->value(0).toInt());
                  else
                      m_registry.drop(key); // it has gone meanwhile
              });
}

void BusItems::place(const ItemKey &key, int pid)
{
    // The item may have been withdrawn, and even registered again, while we were asking the bus.
    if (!m_registry.contains(key) || isPlaced(key))
        return;
    auto client = std::make_unique<ItemClient>(m_bus, key, m_workshop, m_surroundings);
    auto *item = client.get();
    connect(item, &ItemClient::changed, this, [this, pid, item] { show(pid, *item); });
    connect(item, &ItemClient::message, this, &BusItems::message);
    connect(
        item, &ItemClient::gone, this, [this, key] { m_registry.drop(key); }, Qt::QueuedConnection);
    connect(item, &ItemClient::unanswered, this, [this, pid] { tellUnanswered(pid); });
    connect(item, &ItemClient::menuReady, this, [this, item](const QRectF &frame) { openMenu(item->menu(), frame); });
    m_items.push_back({pid, std::move(client)});
}

bool BusItems::isPlaced(const ItemKey &key) const
{
    return std::ranges::any_of(m_items, [&](const Item &item) { return item.client->key() == key; });
}

void BusItems::show(int pid, ItemClient &client)
{
    const QPointer guarded(&client);
    m_programs.show(pid,
                    {client.key().text(), client.key().path, *client.item(), client.pictures(),
                     platform::weakly(guarded, &ItemClient::press), platform::weakly(guarded, &ItemClient::scroll),
                     client.canBeActivated()});
}

void BusItems::remove(const ItemKey &key)
{
    const auto found = std::ranges::find_if(m_items, [&](const Item &item) { return item.client->key() == key; });
    if (found == m_items.end())
        return;
    const int pid = found->pid;
    m_items.erase(found);
    m_programs.remove(pid, key.text());
}

void BusItems::openMenu(MenuClient *menu, const QRectF &frame)
{
    m_desktop.menus().open(std::make_shared<TrayMenu>(*menu), frame);
}

void BusItems::lapsePresses()
{
    for (const Item &item : m_items)
        item.client->lapse();
}

void BusItems::tellUnanswered(int pid)
{
    m_desktop.notify(m_programs.nameOf(pid), tr("The program does not answer."));
}

} // namespace brimshade::desktop::tray
