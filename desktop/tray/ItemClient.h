#pragma once
#include "BusCall.h"
#include "BusName.h"
#include "ItemPress.h"
#include "LifeSign.h"
#include "Refresh.h"
#include "TrayItem.h"
#include "Workshop.h"

#include <QObject>
#include <memory>
#include <optional>

namespace brimshade::desktop::tray {

class MenuClient;

// One tray item over the bus: it reads the item, follows its changes and presses it. Main thread; nothing it asked for
// arrives after it is gone. The workshop outlives it.
class ItemClient : public QObject {
    Q_OBJECT
public:
    ItemClient(const QDBusConnection &bus, const ItemKey &key, const Workshop &workshop);
    ~ItemClient() override;

    const ItemKey &key() const { return m_key; }
    const std::optional<TrayItem> &item() const { return m_item; } // nothing until the first answer
    platform::Image image() const { return m_image; }
    MenuClient *menu() const { return m_menu.get(); }

    void press(ItemGesture gesture, const QRectF &frame); // of the item, in display space
    void lapse(); // the press under way

Q_SIGNALS:
    void changed(); // item() or image() is another one
    void menuReady(const QRectF &frame); // show menu() at the item that was pressed
    void unanswered(); // a press; the program does not answer anything
    void message(const QString &text);

private Q_SLOTS:
    void signalled(); // by the program, about any of its properties

private:
    void fetch();
    void receive(const BusReply &reply);
    void take(const TrayItem &item, const platform::Image &image);
    void updateMenu();
    void say(const QString &text);

    QDBusConnection m_bus;
    ItemKey m_key;
    BusAddress m_address;
    const Workshop &m_workshop;
    Refresh m_refresh;
    std::optional<TrayItem> m_item;
    platform::Image m_image;
    LifeSign m_life;
    ItemPress m_press;
    std::unique_ptr<MenuClient> m_menu;
    QString m_lastMessage;
    Lifetime m_lifetime;
};

} // namespace brimshade::desktop::tray
