#pragma once
#include "MenuSource.h"
#include "platform/Menu.h"

#include <QObject>
#include <QRectF>
#include <QStringList>
#include <memory>

namespace brimshade::desktop {

class SharedState;

// The one menu that can be open. Main thread. It holds no pixels: the scene draws what is open here.
class MenuHost : public QObject, public platform::Menus {
    Q_OBJECT
public:
    explicit MenuHost(const SharedState &state);
    ~MenuHost() override; // an open menu is forgotten: neither its closed() nor its dismissed runs

    // Opens under the anchor, or at its corner if it is empty, after dismissing any open menu. The anchor is in display
    // space and may lie off the screen: whoever draws the menu clamps it. dismissed runs when the menu is gone, after
    // the entry's own effect. A menu without entries closes at once.
    void open(std::shared_ptr<MenuSource> source, const QRectF &anchor, platform::Work dismissed = {});
    void popUpContextMenu(const platform::Menu &menu, std::optional<QPointF> at, platform::Work dismissed) override;
    void dismiss();

    MenuSource *openMenu() const; // null when none is
    QRectF anchor() const; // of the open menu, display space
    QStringList titles() const; // of the open menu's top level, "-" for a separator
    // Chooses an enabled entry by its title, anywhere in the tree; false when there is none.
    bool choose(const QString &title);
    void choose(int id); // an id that is not an enabled leaf of the open menu does nothing

Q_SIGNALS:
    void changed(); // opened, closed, or its entries changed

private:
    struct OpenMenu {
        std::shared_ptr<MenuSource> source;
        QRectF anchor;
        platform::Work dismissed;
    };
    void close(const int *chosen);

    const SharedState &m_state;
    std::unique_ptr<OpenMenu> m_open;
};

// A menu of the program as the host shows it.
std::shared_ptr<MenuSource> makeMenuSource(const platform::Menu &menu);

} // namespace brimshade::desktop
