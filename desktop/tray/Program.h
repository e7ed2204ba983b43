#pragma once
#include "DesktopEntry.h"

namespace brimshade::desktop::tray {

// A running process, as far as it tells which program it is.
struct Process {
    QString executable; // the file it runs; empty when it may not be seen
    QStringList arguments; // its command line, the program's own name first
};

Process readProcess(int pid);

// The file names that the program may be known by: for a script its own, not its interpreter's.
QStringList programNames(const Process &process);

// The desktop entry that belongs to a process; nothing when there is none.
std::optional<DesktopEntry> findEntry(const Process &process, const std::vector<DesktopEntry> &entries);

// The entry of the process with that id in the user's and the system's folders. Reads files: not on the main thread.
std::optional<DesktopEntry> lookUpProgram(int pid);

} // namespace brimshade::desktop::tray
