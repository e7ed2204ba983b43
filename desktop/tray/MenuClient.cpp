#include "MenuClient.h"

#include <QDBusMessage>
#include <QDBusVariant>
#include <QDateTime>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::tray {

namespace {
constexpr auto kMenuInterface = "com.canonical.dbusmenu";
const auto kClicked = u"clicked";
} // namespace

MenuClient::MenuClient(const QDBusConnection &bus, const QString &owner, const QString &path, const Workshop &workshop,
                       LifeSign &life, Activation &activation)
    : m_bus(bus), m_address{owner, path, QString::fromLatin1(kMenuInterface)}, m_life(life), m_activation(activation),
      m_workshop(workshop), m_refresh(workshop.dispatch(), [this] { fetch(); })
{
    connect(&life, &LifeSign::heard, this, &MenuClient::sendHeld);
    connect(&life, &LifeSign::silent, this, &MenuClient::dropChoices);
    m_bus.connect(owner, path, m_address.interface, u"LayoutUpdated"_s, this, SLOT(layoutUpdated(QDBusMessage)));
    m_bus.connect(owner, path, m_address.interface, u"ItemsPropertiesUpdated"_s, this, SLOT(propertiesUpdated()));
    m_refresh.requestNow();
}

void MenuClient::open()
{
    m_opening = Opening::telling;
    const bool isFresh = !m_oldParent && !m_entries.empty();
    callAsync(m_bus, m_address, u"AboutToShow"_s, {0}, this, [this](const BusReply &reply) { programWasTold(reply); });
    m_life.ask();
    if (isFresh)
        finishOpening(true);
}

void MenuClient::forgetOpening()
{
    m_opening = Opening::none;
    m_readsForOpening = false;
}

// The answer itself is not trusted: programs that only now fill their menu often say that nothing changed.
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
    callAsync(m_bus, m_address, u"AboutToShow"_s, {id}, this, [this, id](const BusReply &) { markOld(id); });
    sendEvent(id, u"opened"_s);
}

void MenuClient::choose(int id)
{
    sendEvent(id, QString::fromUtf16(kClicked));
}

void MenuClient::close()
{
    --m_opened;
    while (!m_shown.empty()) {
        sendEvent(m_shown.back(), u"closed"_s);
        m_shown.pop_back();
    }
    sendEvent(0, u"closed"_s);
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
    callAsync(m_bus, m_address, u"GetLayout"_s, {parent, -1, QStringList()}, this,
              [this, parent](const BusReply &reply) { receive(parent, reply); });
}

void MenuClient::receive(int parent, const BusReply &reply)
{
    if (!reply || reply->size() != 2) {
        m_oldParent = 0;
        finishReading(false);
        return;
    }
    MenuLimits limits;
    if (parent != 0) {
        limits.depth -= depthOf(m_entries, parent);
        limits.taken = idsOf(m_entries);
        if (const auto *entry = findMenuEntry(m_entries, parent))
            limits.taken -= idsOf(entry->submenu);
    }
    const auto parse = [node = reply->at(1), limits, theme = m_iconThemePath](Workshop::Tools &tools) {
        return parseLayout(
            node, [&](const QString &name) { return tools.icons.find(name, theme); }, limits);
    };
    m_workshop.run(parse, m_lifetime.guard([this, parent](const MenuLayout &layout) {
        take(parent, layout);
        finishReading(true);
    }));
}

void MenuClient::take(int parent, MenuLayout layout)
{
    if (parent == 0) {
        showNew(std::move(layout.entries), layout.isCut);
        return;
    }
    auto entries = m_entries;
    if (auto *entry = findMenuEntry(entries, parent)) {
        entry->submenu = std::move(layout.entries);
        showNew(std::move(entries), layout.isCut);
    }
}

void MenuClient::finishReading(bool isRead)
{
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
    sendEvent(0, u"opened"_s);
    if (m_oldParent)
        m_refresh.request();
    Q_EMIT ready();
}

void MenuClient::showNew(std::vector<MenuEntry> entries, bool isCut)
{
    if (isCut && !m_saidCut)
        Q_EMIT message(u"its menu is too large or too deep: the beginning is shown"_s);
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
        sendHeld();
    else
        m_life.ask();
}

void MenuClient::sendHeld()
{
    while (!m_held.empty() && !m_isProviding) {
        const auto event = m_held.front();
        m_held.pop_front();
        if (event.name != kClicked) {
            send(event);
            continue;
        }
        m_isProviding = true;
        m_activation.provide(m_lifetime.guard([this, event] {
            m_isProviding = false;
            send(event);
            sendHeld();
        }));
    }
}

// A program that slept does not get a choice that the person has given up on, only the news that its menu has closed.
void MenuClient::dropChoices()
{
    for (const auto &event : std::exchange(m_held, {})) {
        if (event.name != kClicked)
            send(event);
    }
}

void MenuClient::send(const Event &event)
{
    const auto data = QVariant::fromValue(QDBusVariant(QString()));
    notify(m_bus, m_address, u"Event"_s, {event.id, event.name, data, event.time});
}

} // namespace brimshade::desktop::tray
