#include "ItemPress.h"

#include "MenuClient.h"

#include <cmath>

namespace brimshade::desktop::tray {

ItemPress::ItemPress(const QDBusConnection &bus, const BusAddress &item, LifeSign &life, platform::Dispatch &dispatch)
    : m_bus(bus), m_item(item), m_life(life), m_dispatch(dispatch)
{
    connect(&life, &LifeSign::heard, this, &ItemPress::callWhenHeard);
}

void ItemPress::start(std::vector<Press> order, MenuClient *menu, const QRectF &frame)
{
    lapse();
    m_isUnderWay = true;
    m_untried = std::move(order);
    m_menu = menu;
    m_frame = frame;
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
        Q_EMIT message(QStringLiteral("its menu does not come"));
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
        Q_EMIT message(QStringLiteral("it has no menu and cannot be activated"));
        return;
    }
    const auto press = m_untried.front();
    m_untried.erase(m_untried.begin());
    if (press == Press::menu && m_menu) {
        m_menu->open();
        return;
    }
    m_method = press == Press::activate ? QStringLiteral("Activate") : QStringLiteral("ContextMenu");
    if (m_life.isHeard())
        callWhenHeard();
}

void ItemPress::callWhenHeard()
{
    if (m_method.isEmpty())
        return;
    const auto method = std::exchange(m_method, {});
    const int x = static_cast<int>(std::lround(m_frame.left()));
    const int y = static_cast<int>(std::lround(m_frame.bottom()));
    ++m_unanswered;
    callPatiently(m_bus, m_item, method, {x, y}, this, [this, method, number = m_number](const BusReply &reply) {
        --m_unanswered;
        if (number == m_number)
            answered(method, reply);
    });
}

void ItemPress::answered(const QString &method, const BusReply &reply)
{
    if (!reply && reply.error().isUnknown()) {
        tryNext();
        return;
    }
    lapse();
    if (!reply)
        Q_EMIT message(QStringLiteral("%1 failed: %2").arg(method, reply.error().text));
}

} // namespace brimshade::desktop::tray
