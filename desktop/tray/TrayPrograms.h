#pragma once
#include "HostedApplication.h"
#include "ItemPlaces.h"
#include "ItemRegistry.h"

#include <map>

namespace brimshade::desktop {
class Desktop;
}

namespace brimshade::desktop::tray {

// The programs that have tray items on one bus, as applications of the desktop. They quit with it. Main thread; the
// Desktop, the workshop and the surroundings outlive it.
class TrayPrograms : public QObject {
    Q_OBJECT
public:
    TrayPrograms(Desktop &desktop, const QDBusConnection &bus, const Workshop &workshop,
                 const Surroundings &surroundings, ItemPlaces places);
    ~TrayPrograms() override;

Q_SIGNALS:
    void message(const QString &text);

private:
    struct Program {
        int hostedId = 0; // 0: not launched
        bool isLookedUp = false;
        HostedProgram known;
        std::vector<std::unique_ptr<ItemClient>> items; // as they came
    };

    void add(const ItemKey &key);
    void remove(const ItemKey &key);
    void place(const ItemKey &key, int pid);
    bool isPlaced(const ItemKey &key) const;
    void lookUp(int pid);
    void lookedUp(int pid, const HostedProgram &known);
    void update(int pid);
    ApplicationSpec describe(const Program &program, const std::vector<HostedItem> &items) const;
    void show(int pid, Program &program, const std::vector<HostedItem> &items);
    void openMenu(MenuClient *menu, const QRectF &frame);
    void lapsePresses();
    void tellUnanswered(int pid);
    static std::vector<HostedItem> hosted(const Program &program);

    Desktop &m_desktop;
    QDBusConnection m_bus;
    const Workshop &m_workshop;
    const Surroundings &m_surroundings;
    const ItemPlaces m_places;
    ItemRegistry m_registry;
    std::map<int, Program> m_programs; // by process id
    Lifetime m_lifetime;
};

} // namespace brimshade::desktop::tray
