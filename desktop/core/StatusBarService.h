#pragma once
#include "BarEntry.h"
#include "platform/StatusBar.h"
#include "platform/UserDefaults.h"

#include <QObject>

namespace brimshade::desktop {

class MenuBar;
class MenuHost;
class Notifications;
class OwnStatusItem;
class ProgramApplication;

// The program's own status items. Main thread.
class StatusBarService : public QObject, public platform::StatusBar {
    Q_OBJECT
public:
    struct Parts {
        const SharedState &state;
        MenuBar &menuBar;
        MenuHost &menus;
        ProgramApplication &application;
        Notifications &notifications;
        platform::UserDefaults &defaults;
        int pid; // of this program
    };
    explicit StatusBarService(const Parts &parts);
    ~StatusBarService() override;

    std::shared_ptr<platform::StatusItem> createStatusItem(double length) override;

    OwnStatusItem *itemOf(const BarEntryPointer &entry) const; // null for another application's
    void barSettled();
    void barChanged(); // its height, from which square items take their width

private:
    friend class OwnStatusItem;
    const Parts m_parts;
    std::vector<OwnStatusItem *> m_items;
};

} // namespace brimshade::desktop
