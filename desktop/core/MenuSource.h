#pragma once
#include "platform/Image.h"

#include <QObject>
#include <QString>
#include <vector>

namespace brimshade::desktop {

struct MenuEntry {
    enum class Toggle { none, checkmark, radio };

    int id = 0; // unique within its menu tree
    QString title;
    bool isSeparator = false;
    bool isEnabled = true;
    Toggle toggle = Toggle::none;
    bool isOn = false;
    platform::Image icon;
    QString shortcut; // ready to show, "⌘Q"
    bool hasSubmenu = false;
    std::vector<MenuEntry> submenu; // may be filled later, after aboutToShow(id)
};

// The content of one menu, for one opening. Main thread. Hidden entries are not listed.
class MenuSource : public QObject {
    Q_OBJECT
public:
    virtual const std::vector<MenuEntry> &entries() const = 0;
    virtual void aboutToShow(int id) { Q_UNUSED(id) } // a submenu opens; changed() follows if its entries come later
    virtual void choose(int id) = 0; // an enabled leaf; closed() follows
    virtual void closed() { } // always, once, last

Q_SIGNALS:
    void changed(); // entries() differ from before, while the menu is open
};

} // namespace brimshade::desktop
