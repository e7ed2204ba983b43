#include "TrayPrograms.h"

#include "desktop/core/Desktop.h"

#include <QTimer>
#include <algorithm>

namespace brimshade::desktop::tray {

namespace {
// Above every process id that Linux gives out: for a process whose own id a desktop file has taken, or is not known.
constexpr int kFirstSpareId = 1 << 23;
} // namespace

TrayPrograms::TrayPrograms(Desktop &desktop, const Workshop &workshop, ItemPlaces places)
    : m_desktop(desktop), m_workshop(workshop), m_places(places)
{
}

TrayPrograms::~TrayPrograms()
{
    for (const auto &[pid, program] : m_programs) {
        if (program.hostedId != 0)
            m_desktop.quit(program.hostedId);
    }
}

void TrayPrograms::show(int pid, const HostedItem &item)
{
    const bool isNew = !m_programs.contains(pid);
    Program &program = m_programs[pid];
    const auto before = std::ranges::find(program.items, item.instance, &HostedItem::instance);
    if (before == program.items.end())
        program.items.push_back(item);
    else
        *before = item;
    if (isNew)
        lookUp(pid);
    else if (program.isLookedUp)
        updateSoon(pid, program);
}

void TrayPrograms::remove(int pid, const QString &instance)
{
    const auto found = m_programs.find(pid);
    if (found == m_programs.end())
        return;
    Program &program = found->second;
    if (std::erase_if(program.items, [&](const HostedItem &item) { return item.instance == instance; }) == 0)
        return;
    if (!program.items.empty()) {
        if (program.isLookedUp)
            update(pid, program);
        return;
    }
    const int hostedId = program.hostedId;
    m_programs.erase(found);
    if (hostedId != 0)
        m_desktop.quit(hostedId);
}

QString TrayPrograms::nameOf(int pid) const
{
    const auto found = m_programs.find(pid);
    return found == m_programs.end() ? QString() : applicationName(found->second.known, found->second.items);
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
    update(pid, program->second);
}

void TrayPrograms::updateSoon(int pid, Program &program)
{
    if (std::exchange(program.isDue, true))
        return;
    QTimer::singleShot(0, &m_desktop, m_lifetime.guard([this, pid] {
        const auto due = m_programs.find(pid);
        if (due != m_programs.end() && due->second.isDue)
            update(pid, due->second);
    }));
}

void TrayPrograms::update(int pid, Program &program)
{
    program.isDue = false;
    if (program.hostedId != 0) {
        m_desktop.change(program.hostedId, describe(program));
        return;
    }
    program.hostedId = pid;
    for (int spare = kFirstSpareId; !m_desktop.launch(describe(program));)
        program.hostedId = spare++;
}

ApplicationSpec TrayPrograms::describe(const Program &program) const
{
    ApplicationSpec given = describeApplication(program.hostedId, program.known, program.items);
    if (m_places == ItemPlaces::listed) {
        for (auto &[identifier, item] : given.items)
            item.origin.reset();
    }
    return given;
}

} // namespace brimshade::desktop::tray
