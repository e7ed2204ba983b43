#pragma once
#include "HostedApplication.h"
#include "ItemRegistry.h"

#include <memory>
#include <vector>

namespace brimshade::desktop {
class Desktop;
}

namespace brimshade::desktop::tray {

class TrayPrograms;

// The tray items on one bus, shown as items of their programs until this is destroyed. Main thread; everything passed
// to the constructor outlives it.
class BusItems : public QObject {
    Q_OBJECT
public:
    BusItems(Desktop &desktop, const QDBusConnection &bus, TrayPrograms &programs, const Workshop &workshop,
             const Surroundings &surroundings);
    ~BusItems() override;

Q_SIGNALS:
    void message(const QString &text);

private:
    struct Item {
        int pid = 0;
        std::unique_ptr<ItemClient> client;
    };

    void add(const ItemKey &key);
    void remove(const ItemKey &key);
    void place(const ItemKey &key, int pid);
    bool isPlaced(const ItemKey &key) const;
    void show(int pid, ItemClient &client);
    void openMenu(MenuClient *menu, const QRectF &frame);
    void lapsePresses();
    void tellUnanswered(int pid);

    Desktop &m_desktop;
    QDBusConnection m_bus;
    TrayPrograms &m_programs;
    const Workshop &m_workshop;
    const Surroundings &m_surroundings;
    ItemRegistry m_registry;
    std::vector<Item> m_items; // in order of arrival
};

} // namespace brimshade::desktop::tray
