#include "MenuClient.h"

#include <QDBusMessage>
#include <QDBusVariant>
#include <QDateTime>

namespace brimshade::desktop::tray {

namespace {
constexpr auto kMenuInterface = "com.canonical.dbusmenu";
const auto kClicked = u"clicked";
} // namespace

MenuClient::MenuClient(const QDBusConnection &bus, const QString &owner, const QString &path,
                       platform::Dispatch &dispatch, LifeSign &life, PictureByName picture)
    : m_bus(bus), m_address{owner, path, QString::fromLatin1(kMenuInterface)}, m_life(life),
      m_picture(std::move(picture)), m_refresh(dispatch, [this] { fetch(); })
{
    connect(&life, &LifeSign::heard, this, [this] { sendHeld(true); });
    connect(&life, &LifeSign::silent, this, [this] { sendHeld(false); });
    m_bus.connect(owner, path, m_address.interface, QStringLiteral("LayoutUpdated"), this,
                  SLOT(layoutUpdated(QDBusMessage)));
    m_bus.connect(owner, path, m_address.interface, QStringLiteral("ItemsPropertiesUpdated"), this,
                  SLOT(propertiesUpdated()));
    m_refresh.requestNow();
}

void MenuClient::open()
{
    m_opening = Opening::telling;
    const bool isFresh = !m_oldParent && !m_entries.empty();
    callAsync(m_bus, m_address, QStringLiteral("AboutToShow"), {0}, this,
              [this](const BusReply &reply) { programWasTold(reply); });
    m_life.ask();
    if (isFresh)
        finishOpening(true);
}

void MenuClient::forgetOpening()
{
    m_opening = Opening::none;
    m_readsForOpening = false;
}

// The answer itself is not trusted: programs that fill a menu only now often say that nothing changed.
void MenuClient::programWasTold(const BusReply &reply)
{
    if (reply || !reply.error().isTimeout())
        m_life.hear();
    markOld(0);
    if (m_opening != Opening::telling)
        return;
    m_opening = Opening::reading;
    m_refresh.requestNow();
}

void MenuClient::aboutToShow(int id)
{
    m_shown.push_back(id);
    callAsync(m_bus, m_address, QStringLiteral("AboutToShow"), {id}, this,
              [this, id](const BusReply &) { markOld(id); });
    sendEvent(id, QStringLiteral("opened"));
}

void MenuClient::choose(int id)
{
    sendEvent(id, QString::fromUtf16(kClicked));
}

void MenuClient::close()
{
    --m_opened;
    while (!m_shown.empty()) {
        sendEvent(m_shown.back(), QStringLiteral("closed"));
        m_shown.pop_back();
    }
    sendEvent(0, QStringLiteral("closed"));
}

void MenuClient::layoutUpdated(const QDBusMessage &signal)
{
    bool isNumber = false;
    const int parent = signal.arguments().value(1).toInt(&isNumber); // (revision, parent)
    markOld(isNumber ? parent : 0);
}

void MenuClient::propertiesUpdated()
{
    markOld(0);
}

void MenuClient::markOld(int parent)
{
    m_oldParent = m_oldParent.value_or(parent) == parent ? parent : 0;
    if (m_opened > 0)
        m_refresh.request();
}

void MenuClient::fetch()
{
    const int parent = m_oldParent.value_or(0);
    m_oldParent.reset();
    m_readsForOpening = m_opening == Opening::reading;
    callAsync(m_bus, m_address, QStringLiteral("GetLayout"), {parent, -1, QStringList()}, this,
              [this, parent](const BusReply &reply) { receive(parent, reply); });
}

void MenuClient::receive(int parent, const BusReply &reply)
{
    const bool isRead = reply && reply->size() == 2;
    if (isRead)
        parent == 0 ? replaceAll(reply->at(1)) : replaceSubmenu(parent, reply->at(1));
    else
        m_oldParent = 0;
    m_refresh.finished();
    if (std::exchange(m_readsForOpening, false))
        finishOpening(isRead);
}

void MenuClient::finishOpening(bool isRead)
{
    m_opening = Opening::none;
    if (!isRead || m_entries.empty()) {
        Q_EMIT unusable();
        return;
    }
    ++m_opened;
    sendEvent(0, QStringLiteral("opened"));
    if (m_oldParent)
        m_refresh.request();
    Q_EMIT ready();
}

void MenuClient::replaceAll(const QVariant &node)
{
    auto layout = parseLayout(node, m_picture);
    showNew(std::move(layout.entries), layout.isCut);
}

void MenuClient::replaceSubmenu(int parent, const QVariant &node)
{
    auto entries = m_entries;
    auto *entry = findEntry(entries, parent);
    if (!entry)
        return;
    entry->submenu.clear();
    MenuLimits limits;
    limits.depth -= depthOf(entries, parent);
    limits.taken = idsOf(entries);
    auto layout = parseLayout(node, m_picture, limits);
    entry->submenu = std::move(layout.entries);
    showNew(std::move(entries), layout.isCut);
}

void MenuClient::showNew(std::vector<MenuEntry> entries, bool isCut)
{
    if (isCut && !m_saidCut)
        Q_EMIT message(QStringLiteral("its menu is too large or too deep: the beginning is shown"));
    m_saidCut = m_saidCut || isCut;
    const bool same = looksTheSame(m_entries, entries);
    m_entries = std::move(entries);
    if (m_opened > 0 && !same)
        Q_EMIT changed();
}

void MenuClient::sendEvent(int id, const QString &event)
{
    m_held.push_back({id, event, static_cast<uint>(QDateTime::currentSecsSinceEpoch())});
    if (m_life.isHeard())
        sendHeld(true);
    else
        m_life.ask();
}

// A program that slept gets no choice that the person has given up; that its menu has closed it shall know.
void MenuClient::sendHeld(bool isHeard)
{
    for (const auto &event : std::exchange(m_held, {})) {
        if (isHeard || event.name != kClicked)
            send(event);
    }
}

void MenuClient::send(const Event &event)
{
    const auto data = QVariant::fromValue(QDBusVariant(QString()));
    notify(m_bus, m_address, QStringLiteral("Event"), {event.id, event.name, data, event.time});
}

} // namespace brimshade::desktop::tray
