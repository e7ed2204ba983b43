#include "PortalKeyGrabber.h"

#include "PortalShortcut.h"
#include "PortalTrigger.h"

#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace brimshade::desktop {

namespace {

constexpr auto kTimeLimit = 5s; // for calls that the portal answers without asking the user
constexpr uint kBindsAnew = 2; // from this version on, an earlier run's shortcuts are inactive until bound again

const QString kSession = u"org.freedesktop.portal.Session"_s;

QString idOf(std::uint32_t number, const QString &trigger)
{
    return u"hotkey-%1-%2"_s.arg(number).arg(trigger.toLower().replace(u'+', u'-'));
}

} // namespace

PortalKeyGrabber::PortalKeyGrabber(const QDBusConnection &bus, bool bindsNothing) : m_bus(bus)
{
    registerPortalTypes();
    if (bindsNothing)
        return;
    auto *watcher = new QDBusServiceWatcher(portal::kService, m_bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &, const QString &newOwner) { ownerChanged(newOwner); });
    m_bus.connect(portal::kService, portal::kPath, portal::kGlobalShortcuts, u"Activated"_s, this,
                  SLOT(activated(QDBusObjectPath, QString, qulonglong, QVariantMap)));
    m_bus.connect(portal::kService, {}, kSession, u"Closed"_s, this, SLOT(sessionClosed(QDBusMessage)));
    inquire();
}

PortalKeyGrabber::~PortalKeyGrabber()
{
    closeSession();
}

bool PortalKeyGrabber::isPlasma5()
{
    return qgetenv("KDE_SESSION_VERSION") == "5";
}

bool PortalKeyGrabber::grab(HotkeyCombination combination, const KeyUse &use)
{
    const QString trigger = portalTrigger(combination);
    if (trigger.isEmpty())
        return false;
    m_grabbed.insert_or_assign(idOf(use.number, trigger), Grabbed{combination, use.purpose});
    renewSoon();
    return true;
}

void PortalKeyGrabber::release(HotkeyCombination combination)
{
    if (std::erase_if(m_grabbed, [&](const auto &each) { return each.second.combination == combination; }) > 0)
        renewSoon();
}

// Introduces us first: the portal stores the user's choice under our name. An older portal lacks this call.
void PortalKeyGrabber::inquire()
{
    m_isInquiring = true;
    auto introduction = QDBusMessage::createMethodCall(portal::kService, portal::kPath,
                                                       u"org.freedesktop.host.portal.Registry"_s, u"Register"_s);
    introduction.setArguments({u"org.brimshade.Brimshade"_s, QVariantMap()});
    m_bus.send(introduction);

    auto question =
        QDBusMessage::createMethodCall(portal::kService, portal::kPath, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    question.setArguments({portal::kGlobalShortcuts, u"version"_s});
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *finished) {
        finished->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *finished;
        setAvailable(reply.isError() ? 0 : reply.value().variant().toUInt());
    });
}

void PortalKeyGrabber::setAvailable(uint version)
{
    m_isInquiring = false;
    m_version = version;
    const bool isAvailable = version > 0;
    if (std::exchange(m_isAvailable, isAvailable) != isAvailable)
        Q_EMIT availabilityChanged();
    renewSoon();
}

// The old portal's sessions have gone with it.
void PortalKeyGrabber::ownerChanged(const QString &newOwner)
{
    if (m_isInquiring) // it was our own question that started the portal
        return;
    m_session.clear();
    m_request.reset();
    if (newOwner.isEmpty())
        setAvailable(0);
    else
        inquire();
}

void PortalKeyGrabber::renewSoon()
{
    if (!std::exchange(m_isRenewing, true))
        QMetaObject::invokeMethod(this, &PortalKeyGrabber::renew, Qt::QueuedConnection);
}

void PortalKeyGrabber::renew()
{
    m_isRenewing = false;
    const bool isCreating = m_request && m_session.isEmpty();
    if (isCreating) // it reads the shortcuts when it is done
        return;
    closeSession();
    if (m_isAvailable && !m_grabbed.empty())
        createSession();
}

// Its name is always the same, because some portals store the user's choice under it.
void PortalKeyGrabber::createSession()
{
    request(u"CreateSession"_s, {}, {{u"session_handle_token"_s, u"brimshade"_s}}, kTimeLimit,
            [this](const Results &results) { sessionCreated(results); });
}

void PortalKeyGrabber::sessionCreated(const Results &results)
{
    m_session = results ? results->value(u"session_handle"_s).toString() : QString();
    if (m_session.isEmpty())
        return;
    if (m_grabbed.empty())
        closeSession();
    else if (m_version < kBindsAnew)
        listShortcuts();
    else
        bindShortcuts();
}

// Shortcuts that an older portal lists are active already; asked to bind them again, some portals open their settings.
void PortalKeyGrabber::listShortcuts()
{
    request(u"ListShortcuts"_s, {QVariant::fromValue(QDBusObjectPath(m_session))}, {}, kTimeLimit,
            [this](const Results &results) {
                const QStringList known = shortcutIds(results.value_or(QVariantMap()).value(u"shortcuts"_s));
                if (!std::ranges::all_of(m_grabbed, [&](const auto &each) { return known.contains(each.first); }))
                    bindShortcuts();
            });
}

void PortalKeyGrabber::bindShortcuts()
{
    QList<PortalShortcut> shortcuts;
    for (const auto &[id, grabbed] : m_grabbed)
        shortcuts.append(
            {id, {{u"description"_s, grabbed.purpose}, {u"preferred_trigger"_s, portalTrigger(grabbed.combination)}}});
    const QString parentWindow;
    request(u"BindShortcuts"_s,
            {QVariant::fromValue(QDBusObjectPath(m_session)), QVariant::fromValue(shortcuts), parentWindow}, {}, {},
            [](const Results &) {});
}

void PortalKeyGrabber::request(const QString &method, const QVariantList &arguments, const QVariantMap &options,
                               std::optional<std::chrono::milliseconds> limit, PortalRequest::Handler handler)
{
    m_request.reset(new PortalRequest(m_bus, method, arguments, options, limit,
                                      [this, handler = std::move(handler)](const Results &results) {
                                          m_request.reset();
                                          handler(results);
                                      }));
}

void PortalKeyGrabber::closeSession()
{
    if (m_request)
        m_request->withdraw();
    m_request.reset();
    if (const QString session = std::exchange(m_session, {}); !session.isEmpty())
        m_bus.send(QDBusMessage::createMethodCall(portal::kService, session, kSession, u"Close"_s));
}

void PortalKeyGrabber::sessionClosed(const QDBusMessage &message)
{
    if (message.path() != m_session)
        return;
    m_session.clear();
    m_request.reset();
}

void PortalKeyGrabber::activated(const QDBusObjectPath &session, const QString &id, qulonglong, const QVariantMap &)
{
    const auto found = m_grabbed.find(id);
    if (session.path() != m_session || found == m_grabbed.end() || !m_pressed)
        return;
    const HotkeyCombination combination = found->second.combination; // m_pressed may change the map
    m_pressed(combination);
}

} // namespace brimshade::desktop
