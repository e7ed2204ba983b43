#pragma once
#include "BusLink.h"
#include "ItemPlaces.h"
#include "Surroundings.h"

namespace brimshade::desktop {

class Desktop;

namespace tray {
class TrayPrograms;
}

// The tray items of the Linux session as applications of the desktop. A process that owns items is launched when its
// first item has been read, changed whenever one of them changes, and quit with its last one. When the bus goes away,
// so do its items; they come back with the next bus.
//
// It is the session's StatusNotifierWatcher or, until an existing watcher goes away, a host that follows it. Main
// thread; construction returns at once, and nothing here waits for the bus. The Dispatch and the Desktop outlive it.
class TrayHost : public QObject {
    Q_OBJECT
public:
    TrayHost(Desktop &desktop, tray::ConnectToBus connect, platform::Dispatch &dispatch, tray::ItemPlaces places,
             tray::Surroundings surroundings = {});
    ~TrayHost() override;

    // For items that do not come over the bus; they must be removed before this is destroyed.
    tray::TrayPrograms &programs();

Q_SIGNALS:
    // A single line about an item or a menu that could not be shown as its program asked.
    void message(const QString &text);

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

QDBusConnection connectToSessionBus(const QString &name);

} // namespace brimshade::desktop
