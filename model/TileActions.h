#pragma once
#include <QObject>
#include <QPoint>
#include <QPointF>
#include <QString>
#include <functional>
#include <optional>

namespace brimshade::platform {
class ItemServices;
struct Menu;
class Menus;
struct ItemOffer;
} // namespace brimshade::platform

namespace brimshade::menubar {
struct MenuExtra;
}

namespace brimshade::model {

class NotchModel;
using menubar::MenuExtra;

// What a tile does. Main thread. An id that no item has any more is ignored.
class TileActions : public QObject {
    Q_OBJECT
public:
    // All outlive this object; items may be null.
    TileActions(NotchModel &model, platform::Menus &menus, platform::ItemServices *items);

    Q_INVOKABLE void open(const QString &id);
    // The context menu at the pointer, or at a point of the view. Its entries act on the item as it was when the menu
    // opened.
    Q_INVOKABLE void showMenu(const QString &id) { popUp(id, {}); }
    Q_INVOKABLE void showMenuAt(const QString &id, QPointF inView) { popUp(id, toScreen(inView)); }
    Q_INVOKABLE void activateSecondary(const QString &id);
    Q_INVOKABLE void scroll(const QString &id, QPoint by); // 120 is a notch of the wheel, up and left
    platform::ItemOffer offer(const QString &id) const;
    // Enter and leave may come in either order when the pointer goes from one tile to the next.
    Q_INVOKABLE void pointerEntered(const QString &id);
    Q_INVOKABLE void pointerLeft(const QString &id);

    // Installed once by whoever shows the tiles: where a point of their view is, in screen space.
    std::function<QPointF(QPointF)> toScreen = [](QPointF inView) { return inView; };

Q_SIGNALS:
    void offersChanged(); // of some item

private:
    void popUp(const QString &id, std::optional<QPointF> at);
    platform::Menu menuOf(const MenuExtra &extra) const;

    NotchModel &m_model;
    platform::Menus &m_menus;
    platform::ItemServices *m_items;
};

} // namespace brimshade::model
