#include "ItemPress.h"

#include "MenuClient.h"

using namespace Qt::StringLiterals;

namespace brimshade::desktop::tray {

namespace {

QString methodOf(Press press)
{
    if (press == Press::secondaryActivate)
        return u"SecondaryActivate"_s;
    return press == Press::activate ? u"Activate"_s : u"ContextMenu"_s;
}

} // namespace

ItemPress::ItemPress(const QDBusConnection &bus, const BusAddress &item, LifeSign &life, Activation &activation,
                     platform::Dispatch &dispatch)
    : m_bus(bus), m_item(item), m_life(life), m_activation(activation), m_dispatch(dispatch)
{
    connect(&life, &LifeSign::heard, this, &ItemPress::call);
}

void ItemPress::start(std::vector<Press> order, MenuClient *menu, const QRectF &frame, QPoint onScreen)
{
    lapse();
    m_isUnderWay = true;
    m_untried = std::move(order);
    m_menu = menu;
    m_frame = frame;
    m_onScreen = onScreen;
    m_dispatch.mainAfter(kAnswerSeconds, m_lifetime.guard([this, number = m_number] {
        if (number == m_number)
            timeOut();
    }));
    m_life.ask();
    tryNext();
}

void ItemPress::lapse()
{
    ++m_number;
    m_isUnderWay = false;
    m_untried.clear();
    m_method.clear();
    if (m_menu)
        m_menu->forgetOpening();
}

void ItemPress::timeOut()
{
    const bool isWaiting = m_isUnderWay;
    lapse();
    if (isWaiting && m_life.isHeard() && !isProgramBusy())
        Q_EMIT message(u"its menu did not open in time"_s);
}

void ItemPress::menuIsReady()
{
    m_isUnderWay = false;
    Q_EMIT menuReady(m_frame);
}

void ItemPress::tryNext()
{
    if (!m_isUnderWay)
        return;
    if (m_untried.empty()) {
        lapse();
        if (m_tried != Press::secondaryActivate) // few programs have that one
            Q_EMIT message(u"it has no menu and cannot be activated"_s);
        return;
    }
    m_tried = m_untried.front();
    m_untried.erase(m_untried.begin());
    if (m_tried == Press::menu && m_menu) {
        m_menu->open();
        return;
    }
    m_method = methodOf(m_tried);
    if (m_life.isHeard())
        call();
}

void ItemPress::call()
{
    if (m_method.isEmpty())
        return;
    m_activation.provide([this, method = std::exchange(m_method, {}), number = m_number] {
        if (number == m_number)
            send(method);
    });
}

void ItemPress::send(const QString &method)
{
    ++m_unanswered;
    callPatiently(m_bus, m_item, method, {m_onScreen.x(), m_onScreen.y()}, this,
                  [this, method, number = m_number](const BusReply &reply) {
                      --m_unanswered;
                      if (number == m_number)
                          answered(method, reply);
                  });
}

void ItemPress::answered(const QString &method, const BusReply &reply)
{
    if (!reply && reply.error().isUnknown()) {
        if (method == methodOf(Press::activate) && std::exchange(m_canActivate, false))
            Q_EMIT learned();
        tryNext();
        return;
    }
    lapse();
    if (!reply)
        Q_EMIT message(u"%1 failed: %2"_s.arg(method, reply.error().text));
}

} // namespace brimshade::desktop::tray
