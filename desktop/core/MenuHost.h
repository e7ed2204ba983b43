#pragma once
#include "MenuSource.h"
#include "platform/Menu.h"

#include <QObject>
#include <QRectF>
#include <memory>

namespace brimshade::desktop {

// The one menu that can be open. Main thread. It holds no pixels: the scene draws what is open here.
class MenuHost : public QObject, public platform::Menus
{
    Q_OBJECT
public:
    // Opens under the anchor (display space), or at its corner for an empty rectangle; an open menu is dismissed
    // first. dismissed runs when the menu is gone, after the entry's own effect. A menu without entries closes at once.
    void open(std::shared_ptr<MenuSource> source, const QRectF &anchor, platform::Work dismissed = {});
    void popUpContextMenu(const platform::Menu &menu, platform::Work dismissed) override;
    void dismiss();

    MenuSource *openMenu() const; // null when none is
    QRectF anchor() const;
    QStringList titles() const; // of the open menu's top level, "-" for a separator
    // Chooses an enabled entry by its title, anywhere in the tree; false when there is none.
    bool choose(const QString &title);
    void choose(int id);

Q_SIGNALS:
    void changed(); // opened, closed, or its entries changed
};

} // namespace brimshade::desktop
