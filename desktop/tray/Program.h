#pragma once
#include "desktop/services/DesktopEntry.h"

#include <functional>

namespace brimshade::desktop::tray {

// A running process, as far as that says which program it is.
struct Process {
    QString executable; // the file it runs; empty when it may not be seen
    QStringList arguments; // its command line, the program's own name first
};

Process readProcess(int pid);

// The file names that the program may be known by: for a script its own, not its interpreter's.
QStringList programNames(const Process &process);

// The desktop entry that belongs to a process; nothing when there is none.
std::optional<DesktopEntry> findDesktopEntry(const Process &process, const std::vector<DesktopEntry> &entries);

// What tells a program from others.
struct FoundProgram {
    std::optional<DesktopEntry> entry;
    QString name; // the same whenever it runs: its entry, else the file that it runs; empty when neither is known
};

// Finds programs by the entries in the user's and the system's folders, which it reads again when it has not for a
// while. Reads files: not on the main thread, and on one at a time.
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
