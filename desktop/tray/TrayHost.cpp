#include "TrayHost.h"

#include "HostedApplication.h"
#include "ItemRegistry.h"
#include "Program.h"
#include "TrayMenu.h"
#include "desktop/core/Desktop.h"
#include "desktop/core/Lifetime.h"
#include "desktop/core/MenuHost.h"
#include "platform/Dispatch.h"
#include "platform/Weakly.h"

#include <algorithm>

namespace brimshade::desktop {

using namespace tray;

namespace {
// Above every process id that Linux gives out: for a process whose own id a desktop file has taken.
constexpr int kFirstSpareId = 1 << 23;
} // namespace

class TrayHost::Private : public QObject {
public:
    Private(TrayHost &owner, Desktop &desktop, const QDBusConnection &bus, platform::Dispatch &dispatch);
    ~Private() override;

private:
    struct Program {
        int hostedId = 0; // 0: not launched
        bool isLookedUp = false;
        std::optional<DesktopEntry> entry;
        std::vector<std::unique_ptr<ItemClient>> items; // as they came
    };

    void add(const ItemKey &key);
    void remove(const ItemKey &key);
    void place(const ItemKey &key, int pid);
    bool isPlaced(const ItemKey &key) const;
    void lookUp(int pid);
    void lookedUp(int pid, const std::optional<DesktopEntry> &entry);
    void update(int pid);
    void show(int pid, Program &program, const std::vector<HostedItem> &items);
    void openMenu(MenuClient *menu, const QRectF &frame);
    void lapsePresses();
    void tellUnanswered(int pid);
    static std::vector<HostedItem> hosted(const Program &program);

    TrayHost &m_owner;
    Desktop &m_desktop;
    QDBusConnection m_bus;
    platform::Dispatch &m_dispatch;
    ItemRegistry m_registry;
    IconFinder m_icons;
    std::map<int, Program> m_programs; // by process id
    Lifetime m_lifetime;
};

TrayHost::TrayHost(Desktop &desktop, const QDBusConnection &bus, platform::Dispatch &dispatch)
    : d(std::make_unique<Private>(*this, desktop, bus, dispatch))
{
}

TrayHost::~TrayHost() = default;

TrayHost::Private::Private(TrayHost &owner, Desktop &desktop, const QDBusConnection &bus, platform::Dispatch &dispatch)
    : m_owner(owner), m_desktop(desktop), m_bus(bus), m_dispatch(dispatch), m_registry(bus)
{
    connect(&m_registry, &ItemRegistry::added, this, &Private::add);
    connect(&m_registry, &ItemRegistry::removed, this, &Private::remove);
    connect(&m_registry, &ItemRegistry::message, &m_owner, &TrayHost::message);
    connect(&m_desktop, &Desktop::acted, this, &Private::lapsePresses);
}

TrayHost::Private::~Private()
{
    for (const auto &[pid, program] : m_programs) {
        if (program.hostedId != 0)
            m_desktop.quit(program.hostedId);
    }
}

void TrayHost::Private::add(const ItemKey &key)
{
    callAsync(m_bus, busDaemon(), QStringLiteral("GetConnectionUnixProcessID"), {key.owner}, this,
              [this, key](const BusReply &reply) {
                  if (reply)
                      place(key, reply->value(0).toInt());
                  else
                      m_registry.drop(key); // gone meanwhile
              });
}

void TrayHost::Private::place(const ItemKey &key, int pid)
{
    // It may have been taken back, and even registered again, while the bus was asked.
    if (!m_registry.contains(key) || isPlaced(key))
        return;
    auto client = std::make_unique<ItemClient>(m_bus, key, m_dispatch, m_icons);
    auto *item = client.get();
    connect(item, &ItemClient::changed, this, [this, pid] { update(pid); });
    connect(item, &ItemClient::message, &m_owner, &TrayHost::message);
    connect(item, &ItemClient::unanswered, this, [this, pid] { tellUnanswered(pid); });
    connect(item, &ItemClient::menuReady, this, [this, item](const QRectF &frame) { openMenu(item->menu(), frame); });
    const bool isNew = !m_programs.contains(pid);
    m_programs[pid].items.push_back(std::move(client));
    if (isNew)
        lookUp(pid);
}

bool TrayHost::Private::isPlaced(const ItemKey &key) const
{
    return std::any_of(m_programs.begin(), m_programs.end(), [&](const auto &program) {
        const auto &items = program.second.items;
        return std::any_of(items.begin(), items.end(), [&](const auto &client) { return client->key() == key; });
    });
}

// Off the main thread: it reads some hundred small files.
void TrayHost::Private::lookUp(int pid)
{
    const auto found = [this, pid](const std::optional<DesktopEntry> &entry) { lookedUp(pid, entry); };
    m_dispatch.globalAsync(platform::QualityOfService::utility,
                           [pid, found = m_lifetime.guard(found), &dispatch = m_dispatch] {
                               dispatch.mainAsync([found, entry = lookUpProgram(pid)] { found(entry); });
                           });
}

void TrayHost::Private::lookedUp(int pid, const std::optional<DesktopEntry> &entry)
{
    const auto program = m_programs.find(pid);
    if (program == m_programs.end())
        return;
    program->second.entry = entry;
    program->second.isLookedUp = true;
    update(pid);
}

void TrayHost::Private::remove(const ItemKey &key)
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

void TrayHost::Private::update(int pid)
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

void TrayHost::Private::show(int pid, Program &program, const std::vector<HostedItem> &items)
{
    if (program.hostedId != 0) {
        m_desktop.change(program.hostedId, describeApplication(program.hostedId, program.entry, items, m_icons));
        return;
    }
    program.hostedId = pid;
    for (int spare = kFirstSpareId;
         !m_desktop.launch(describeApplication(program.hostedId, program.entry, items, m_icons));)
        program.hostedId = spare++;
}

std::vector<HostedItem> TrayHost::Private::hosted(const Program &program)
{
    std::vector<HostedItem> items;
    for (const auto &client : program.items) {
        if (client->item()) {
            items.push_back({client->key(), *client->item(), client->image(),
                             platform::weakly(QPointer(client.get()), &ItemClient::press)});
        }
    }
    return items;
}

void TrayHost::Private::openMenu(MenuClient *menu, const QRectF &frame)
{
    m_desktop.menus().open(std::make_shared<TrayMenu>(*menu), frame);
}

void TrayHost::Private::lapsePresses()
{
    for (const auto &[pid, program] : m_programs) {
        for (const auto &client : program.items)
            client->lapse();
    }
}

void TrayHost::Private::tellUnanswered(int pid)
{
    const auto &program = m_programs[pid];
    m_desktop.notify(applicationName(program.entry, hosted(program)), QStringLiteral("The program does not answer."));
}

} // namespace brimshade::desktop
