#include "TrayPrograms.h"

#include "TrayMenu.h"
#include "desktop/core/Desktop.h"
#include "desktop/core/MenuHost.h"
#include "platform/Weakly.h"

#include <algorithm>

namespace brimshade::desktop::tray {

namespace {
// Above every process id that Linux gives out: for a process whose own id a desktop file has taken.
constexpr int kFirstSpareId = 1 << 23;
} // namespace

TrayPrograms::TrayPrograms(Desktop &desktop, const QDBusConnection &bus, const Workshop &workshop,
                           const Surroundings &surroundings, ItemPlaces places)
    : m_desktop(desktop), m_bus(bus), m_workshop(workshop), m_surroundings(surroundings), m_places(places),
      m_registry(bus)
{
    connect(&m_registry, &ItemRegistry::added, this, &TrayPrograms::add);
    connect(&m_registry, &ItemRegistry::removed, this, &TrayPrograms::remove);
    connect(&m_registry, &ItemRegistry::message, this, &TrayPrograms::message);
    connect(&m_desktop, &Desktop::acted, this, &TrayPrograms::lapsePresses);
}

TrayPrograms::~TrayPrograms()
{
    for (const auto &[pid, program] : m_programs) {
        if (program.hostedId != 0)
            m_desktop.quit(program.hostedId);
    }
}

void TrayPrograms::add(const ItemKey &key)
{
    callAsync(m_bus, busDaemon(), QStringLiteral("GetConnectionUnixProcessID"), {key.owner}, this,
              [this, key](const BusReply &reply) {
                  if (reply)
                      place(key, reply->value(0).toInt());
                  else
                      m_registry.drop(key); // gone meanwhile
              });
}

void TrayPrograms::place(const ItemKey &key, int pid)
{
    // It may have been taken back, and even registered again, while the bus was asked.
    if (!m_registry.contains(key) || isPlaced(key))
        return;
    auto client = std::make_unique<ItemClient>(m_bus, key, m_workshop, m_surroundings);
    auto *item = client.get();
    connect(item, &ItemClient::changed, this, [this, pid] { update(pid); });
    connect(item, &ItemClient::message, this, &TrayPrograms::message);
    connect(
        item, &ItemClient::gone, this, [this, key] { m_registry.drop(key); }, Qt::QueuedConnection);
    connect(item, &ItemClient::unanswered, this, [this, pid] { tellUnanswered(pid); });
    connect(item, &ItemClient::menuReady, this, [this, item](const QRectF &frame) { openMenu(item->menu(), frame); });
    const bool isNew = !m_programs.contains(pid);
    m_programs[pid].items.push_back(std::move(client));
    if (isNew)
        lookUp(pid);
}

bool TrayPrograms::isPlaced(const ItemKey &key) const
{
    return std::any_of(m_programs.begin(), m_programs.end(), [&](const auto &program) {
        const auto &items = program.second.items;
        return std::any_of(items.begin(), items.end(), [&](const auto &client) { return client->key() == key; });
    });
}

void TrayPrograms::lookUp(int pid)
{
    const auto find = [pid](Workshop::Tools &tools) {
        HostedProgram known{tools.programs.find(pid), {}};
        if (known.found.entry)
            known.icon = tools.icons.find(known.found.entry->icon, {});
        return known;
    };
    m_workshop.run(find, m_lifetime.guard([this, pid](const HostedProgram &known) { lookedUp(pid, known); }));
}

void TrayPrograms::lookedUp(int pid, const HostedProgram &known)
{
    const auto program = m_programs.find(pid);
    if (program == m_programs.end())
        return;
    program->second.known = known;
    program->second.isLookedUp = true;
    update(pid);
}

void TrayPrograms::remove(const ItemKey &key)
{
    for (auto &[pid, program] : m_programs) {
        if (std::erase_if(program.items, [&](const auto &client) { return client->key() == key; }) == 0)
            continue;
        update(pid);
        if (program.items.empty())
            m_programs.erase(pid);
        return;
    }
}

void TrayPrograms::update(int pid)
{
    auto &program = m_programs[pid];
    if (!program.isLookedUp)
        return;
    const auto items = hosted(program);
    if (!items.empty())
        show(pid, program, items);
    else if (program.hostedId != 0)
        m_desktop.quit(std::exchange(program.hostedId, 0));
}

ApplicationSpec TrayPrograms::describe(const Program &program, const std::vector<HostedItem> &items) const
{
    ApplicationSpec given = describeApplication(program.hostedId, program.known, items);
    if (m_places == ItemPlaces::listed) {
        for (auto &[identifier, item] : given.items)
            item.origin.reset();
    }
    return given;
}

void TrayPrograms::show(int pid, Program &program, const std::vector<HostedItem> &items)
{
    if (program.hostedId != 0) {
        m_desktop.change(program.hostedId, describe(program, items));
        return;
    }
    program.hostedId = pid;
    for (int spare = kFirstSpareId; !m_desktop.launch(describe(program, items));)
        program.hostedId = spare++;
}

std::vector<HostedItem> TrayPrograms::hosted(const Program &program)
{
    std::vector<HostedItem> items;
    for (const auto &client : program.items) {
        if (client->item()) {
            items.push_back({client->key(), *client->item(), client->pictures(),
                             platform::weakly(QPointer(client.get()), &ItemClient::press),
                             platform::weakly(QPointer(client.get()), &ItemClient::scroll), client->canBeActivated()});
        }
    }
    return items;
}

void TrayPrograms::openMenu(MenuClient *menu, const QRectF &frame)
{
    m_desktop.menus().open(std::make_shared<TrayMenu>(*menu), frame);
}

void TrayPrograms::lapsePresses()
{
    for (const auto &[pid, program] : m_programs) {
        for (const auto &client : program.items)
            client->lapse();
    }
}

void TrayPrograms::tellUnanswered(int pid)
{
    const auto &program = m_programs[pid];
    m_desktop.notify(applicationName(program.known, hosted(program)), tr("The program does not answer."));
}

} // namespace brimshade::desktop::tray
