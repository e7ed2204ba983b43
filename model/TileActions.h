#pragma once
#include <QObject>
#include <QString>

namespace brimshade::platform {
class Menus;
}

namespace brimshade::model {

class NotchModel;

// What a tile does. Main thread. An id that no item has any more is ignored.
class TileActions : public QObject {
    Q_OBJECT
public:
    // Both outlive this object.
    TileActions(NotchModel &model, platform::Menus &menus, QObject *parent = nullptr);

    Q_INVOKABLE void open(const QString &id);
    // The context menu at the pointer. Its entries act on the item as it was when the menu opened.
    Q_INVOKABLE void showMenu(const QString &id);
    // Enter and leave may come in either order when the pointer goes from one tile to the next.
    Q_INVOKABLE void pointerEntered(const QString &id);
    Q_INVOKABLE void pointerLeft(const QString &id);

private:
    NotchModel &m_model;
    platform::Menus &m_menus;
};

} // namespace brimshade::model
