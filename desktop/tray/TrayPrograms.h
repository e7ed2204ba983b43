#pragma once
#include "HostedApplication.h"
#include "ItemPlaces.h"
#include "Workshop.h"

#include <map>
#include <vector>

namespace brimshade::desktop {
class Desktop;
}

namespace brimshade::desktop::tray {

// The programs that have tray items, as applications of the desktop: launched with their first item, changed with each
// of them, quit with the last one. A process is one application, whichever way its items come; what several of them
// become in one turn of the event loop is one change. Main thread; the Desktop and the workshop outlive it.
class TrayPrograms {
public:
    TrayPrograms(Desktop &desktop, const Workshop &workshop, ItemPlaces places);
    ~TrayPrograms();
    Q_DISABLE_COPY_MOVE(TrayPrograms)

    // A new item of that process, or what the one of that instance has become. An unknown process has a
    // negative number of its own.
    void show(int pid, const HostedItem &item);
    void remove(int pid, const QString &instance); // or nothing, where it was never shown
    QString nameOf(int pid) const;

private:
    struct Program {
        int hostedId = 0; // 0: not launched
        bool isLookedUp = false;
        bool isDue = false; // an update is on its way
        HostedProgram known;
        std::vector<HostedItem> items; // as they came
    };

    void lookUp(int pid);
    void lookedUp(int pid, const HostedProgram &known);
    void updateSoon(int pid, Program &program);
    void update(int pid, Program &program);
    ApplicationSpec describe(const Program &program) const;

    Desktop &m_desktop;
    const Workshop &m_workshop;
    const ItemPlaces m_places;
    std::map<int, Program> m_programs; // by process id
    Lifetime m_lifetime;
};

} // namespace brimshade::desktop::tray
