#pragma once
#include "BusCall.h"
#include "BusName.h"
#include "IconFinder.h"
#include "Refresh.h"
#include "TrayItem.h"

#include <QObject>
#include <QRectF>
#include <memory>
#include <optional>

namespace brimshade::desktop::tray {

class MenuClient;

// One tray item over the bus: it reads the item, follows its changes and presses it. Main thread; nothing it asked for
// arrives after it is gone.
class ItemClient : public QObject {
    Q_OBJECT
public:
    ItemClient(const QDBusConnection &bus, const ItemKey &key, platform::Dispatch &dispatch, const IconFinder &icons);
    ~ItemClient() override;

    const ItemKey &key() const { return m_key; }
    const std::optional<TrayItem> &item() const { return m_item; } // nothing until the first answer
    platform::Image image() const { return m_image; }
    MenuClient *menu() const { return m_menu.get(); }

    // frame is the item's, in display space: a program that shows something itself gets its lower left corner.
    void press(ItemGesture gesture, const QRectF &frame);

Q_SIGNALS:
    void changed(); // item() or image() is another one
    void menuReady(const QRectF &frame); // show menu() at the item that was pressed
    void message(const QString &text);

private Q_SLOTS:
    void signalled(); // by the program, about any of its properties

private:
    void fetch();
    void receive(const BusReply &reply);
    void take(ParsedItem parsed);
    void updateMenu();
    void tryNext();
    void call(const QString &method);
    void say(const QString &text);

    QDBusConnection m_bus;
    ItemKey m_key;
    BusAddress m_address;
    platform::Dispatch &m_dispatch;
    IconFinder m_icons;
    Refresh m_refresh;
    std::optional<TrayItem> m_item;
    platform::Image m_image;
    std::unique_ptr<MenuClient> m_menu;
    QString m_lastMessage;

    std::vector<Press> m_untried; // of the press under way
    QRectF m_pressedFrame;
};

} // namespace brimshade::desktop::tray
