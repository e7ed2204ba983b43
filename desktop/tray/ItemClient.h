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

// One tray item on the bus: reads it, follows its changes and presses it. Main thread; no answer arrives after it is
// destroyed. The workshop and the surroundings outlive it.
class ItemClient : public QObject {
    Q_OBJECT
public:
    ItemClient(const QDBusConnection &bus, const ItemKey &key, const Workshop &workshop,
               const Surroundings &surroundings);
    ~ItemClient() override;

    const ItemKey &key() const { return m_key; }
    const std::optional<TrayItem> &item() const { return m_item; } // nothing until the first answer
    const ItemPictures &pictures() const { return m_pictures; }
    MenuClient *menu() const { return m_menu.get(); }

    void press(ItemGesture gesture, const QRectF &frame); // of the item, in display space
    void lapse(); // drops the press under way
    void scroll(QPoint by); // 120 is a notch of the wheel, up and left
    bool canBeActivated() const; // it is more than a menu and, as far as known, the program can do it

Q_SIGNALS:
    void changed(); // item(), pictures() or canBeActivated() has changed
    void menuReady(const QRectF &frame); // show menu() at the item that was pressed
    void gone(); // its program lives on without the item; this does nothing more
    void unanswered(); // a press got no answer: the program does not answer anything
    void message(const QString &text);

private Q_SLOTS:
    void signalled(); // the program reports a change of any property

private:
    void fetch();
    void receive(const BusReply &reply);
    void take(const TrayItem &item, const ItemPictures &pictures);
    void updateMenu();
    void sendScroll();
    void say(const QString &text);

    QDBusConnection m_bus;
    ItemKey m_key;
    BusAddress m_address;
    const Workshop &m_workshop;
    const Surroundings &m_surroundings;
    Refresh m_refresh;
    std::optional<TrayItem> m_item;
    ItemPictures m_pictures;
    LifeSign m_life;
    Activation m_activation;
    QPoint m_scrolled; // not yet sent to the program
    ItemPress m_press;
    std::unique_ptr<MenuClient> m_menu;
    QString m_lastMessage;
    Lifetime m_lifetime;
};

} // namespace brimshade::desktop::tray
