#pragma once
#include "desktop/services/DesktopEntry.h"

#include <functional>

namespace brimshade::desktop::tray {

// What identifies the program that a running process belongs to.
struct Process {
    QString executable; // the file it runs; empty if we may not see it
    QStringList arguments; // its command line, the program's own name first
};

Process readProcess(int pid);

// The file names that the program may be known by: a script's own name, not its interpreter's.
QStringList programNames(const Process &process);

// The desktop entry that belongs to a process; nothing if there is none.
std::optional<DesktopEntry> findDesktopEntry(const Process &process, const std::vector<DesktopEntry> &entries);

// What distinguishes a program from others.
struct FoundProgram {
    std::optional<DesktopEntry> entry;
    QString name; // the same in every run: its entry, else the file that it runs; empty if neither is known
};

// Finds programs by the entries in the user's and the system's folders, which it reads again after a while. It reads
// files, so it runs off the main thread, on one thread at a time.
class ProgramFinder {
public:
    explicit ProgramFinder(std::function<double()> now); // seconds

    FoundProgram find(int pid); // of the process with that id

private:
    const std::function<double()> m_now;
    std::vector<DesktopEntry> m_entries;
    std::optional<double> m_readAt;
};

} // namespace brimshade::desktop::tray
