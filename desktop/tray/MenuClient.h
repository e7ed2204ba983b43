#pragma once
#include "Activation.h"
#include "BusCall.h"
#include "LifeSign.h"
#include "MenuLayout.h"
#include "Refresh.h"
#include "Workshop.h"

#include <QObject>
#include <QPointer>
#include <deque>
#include <optional>

class QDBusMessage;

namespace brimshade::desktop::tray {

// One program's menu over com.canonical.dbusmenu. It reads the menu once before the first opening; while the menu is
// closed, a change only marks what was read as old. Main thread.
class MenuClient : public QObject {
    Q_OBJECT
public:
    // workshop, life and activation are the item's and outlive it.
    MenuClient(const QDBusConnection &bus, const QString &owner, const QString &path, const Workshop &workshop,
               LifeSign &life, Activation &activation);

    void setIconThemePath(const QString &path) { m_iconThemePath = path; }
    const QString &path() const { return m_address.path; }
    const std::vector<MenuEntry> &entries() const { return m_entries; }

    // Tells the program that its menu is about to be shown and ends in ready() or unusable(), at once if what was read
    // is still valid. Each ready() is followed by one close().
    void open();
    void forgetOpening(); // neither ready() nor unusable() follows any more
    void aboutToShow(int id); // a submenu; changed() follows if that brings entries
    void choose(int id); // dropped if the program has not answered since the menu was opened, and still does not
    void close();

Q_SIGNALS:
    void ready(); // entries() may be shown
    void unusable(); // the program does not answer, or has no entries
    void changed(); // entries() look different from before, while open
    void message(const QString &text);

private:
    struct Event {
        int id = 0;
        QString name;
        uint time = 0; // seconds since 1970
    };

private Q_SLOTS:
    void layoutUpdated(const QDBusMessage &signal);
    void propertiesUpdated();

private:
    void markOld(int parent);
    void fetch();
    void receive(int parent, const BusReply &reply);
    void take(int parent, MenuLayout layout);
    void finishReading(bool isRead);
    void showNew(std::vector<MenuEntry> entries, bool isCut);
    void programWasTold(const BusReply &reply);
    void finishOpening(bool isRead);
    void sendEvent(int id, const QString &event); // once the program is heard
    void send(const Event &event);
    void sendHeld();
    void dropChoices();

    QDBusConnection m_bus;
    BusAddress m_address;
    LifeSign &m_life;
    Activation &m_activation;
    const Workshop &m_workshop;
    QString m_iconThemePath; // for the pictures of its entries
    Refresh m_refresh;
    std::vector<MenuEntry> m_entries;
    std::optional<int> m_oldParent = 0; // whose children must be read again; 0 is the whole menu
    // The stage of an open() that has not ended yet: the program is being told, then its menu is being read.
    enum class Opening { none, telling, reading };
    Opening m_opening = Opening::none;
    bool m_readsForOpening = false; // the read under way began after the program was told
    int m_opened = 0; // how often it was shown and not yet closed
    bool m_saidCut = false;
    std::deque<Event> m_held; // held until the program answers and may bring up its windows
    bool m_isProviding = false; // a token is on its way, for the choice that is sent next
    std::vector<int> m_shown; // submenus that were announced as shown, and must be announced as closed
    Lifetime m_lifetime;
};

} // namespace brimshade::desktop::tray
