#pragma once
#include "ApplicationSpec.h"
#include "BarEntry.h"
#include "ElementTree.h"

#include <QObject>
#include <map>

namespace brimshade::desktop {

class MenuBar;
class MenuHost;

// The running applications: what Accessibility reads of them, their items in the bar, and what a press opens.
// Main thread.
class Applications : public QObject {
    Q_OBJECT
public:
    Applications(SharedState &state, MenuBar &menuBar, MenuHost &menus);
    ~Applications() override;

    // See Desktop; nothing is announced here.
    bool launch(const ApplicationSpec &application);
    bool quit(int pid);
    bool change(int pid, const ApplicationSpec &application);
    bool isRunning(int pid) const;

    void asked(ItemGesture gesture, const ElementPointer &element); // other than by a click on it
    void askedInVain(const ElementPointer &element); // it is gone
    ItemSpec itemSpec(const ElementPointer &element) const; // empty when it is gone
    QString identity(const ElementPointer &element) const; // see ItemServices

Q_SIGNALS:
    void offersChanged();
    void itemsChanged(); // of a live application
    void acted(); // before the request takes effect
    void notified(const QString &application, const QString &what);

private:
    struct Item {
        DescribedExtra extra;
        BarEntryPointer entry; // null: its frame is unreadable, the bar does not have it
        QString instance; // its origin's; empty without one
    };
    struct Hosted {
        ApplicationSpec given;
        platform::Image icon;
        std::vector<Item> items;
    };
    std::vector<DescribedExtra> publish(Hosted &hosted);
    void host(Hosted &hosted);
    static BarEntryPointer takeEntry(std::vector<Item> &before, const Item &item);
    BarEntryPointer makeEntry(const Hosted &hosted, const DescribedExtra &extra, BarEntryPointer before);
    void describe(BarEntry &entry, const Hosted &hosted, const DescribedExtra &extra);
    void attach(BarEntry &entry, const ElementPointer &element);
    void dismissOrphanedMenu();
    std::pair<const Hosted *, const Item *> find(int pid, const Element *element) const; // null when it is gone
    void carryOut(ItemGesture gesture, int pid, const Element *element);
    void carryOut(ItemGesture gesture, const Hosted &hosted, const Item &item);

    SharedState &m_state;
    MenuBar &m_menuBar;
    MenuHost &m_menus;
    std::map<int, Hosted> m_hosted; // by pid
};

} // namespace brimshade::desktop
