#pragma once
#include "Activation.h"
#include "LifeSign.h"
#include "TrayItem.h"

#include <QPointer>
#include <QRectF>

namespace brimshade::desktop::tray {

class MenuClient;

// The press of an item: it tries one request after another until the program accepts one. It lapses when the program
// has not answered for two seconds: it then has no effect, whatever the program does when it wakes. Main thread.
class ItemPress : public QObject {
    Q_OBJECT
public:
    // All arguments outlive it.
    ItemPress(const QDBusConnection &bus, const BusAddress &item, LifeSign &life, Activation &activation,
              platform::Dispatch &dispatch);

    // frame is the item's, in display space; onScreen is the point for a program that shows something itself. An
    // earlier press lapses.
    void start(std::vector<Press> order, MenuClient *menu, const QRectF &frame, QPoint onScreen);
    void lapse();

    void menuIsReady();
    void tryNext(); // the program lacks what was tried

    bool canActivate() const { return m_canActivate; } // as long as the program has not said otherwise
    // Whether calls are unanswered: an answer may come only when a menu closes that the program itself draws.
    bool isProgramBusy() const { return m_unanswered > 0; }

Q_SIGNALS:
    void menuReady(const QRectF &frame);
    void learned(); // canActivate() has changed
    void message(const QString &text);

private:
    void timeOut();
    void call();
    void send(const QString &method);
    void answered(const QString &method, const BusReply &reply);

    QDBusConnection m_bus;
    BusAddress m_item;
    LifeSign &m_life;
    Activation &m_activation;
    platform::Dispatch &m_dispatch;

    int m_number = 0; // of the press; an answer to an earlier one comes too late
    bool m_isUnderWay = false;
    bool m_canActivate = true; // as far as known
    std::vector<Press> m_untried;
    Press m_tried = Press::menu; // last
    QString m_method; // to be called once the program is heard
    QPointer<MenuClient> m_menu;
    QRectF m_frame;
    QPoint m_onScreen;
    int m_unanswered = 0;
    Lifetime m_lifetime;
};

} // namespace brimshade::desktop::tray
