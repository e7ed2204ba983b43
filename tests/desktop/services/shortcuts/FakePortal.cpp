#include "FakePortal.h"
#include "desktop/services/shortcuts/PortalRequest.h"
#include "desktop/services/shortcuts/PortalShortcut.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

QString described(const QDBusMessage &call)
{
    const QVariantList arguments = call.arguments();
    if (call.member() == "Close"_L1)
        return call.interface().endsWith(u".Request"_s) ? u"Close request"_s : u"Close session"_s;
    if (call.member() == "Register"_L1)
        return u"Register "_s + arguments.value(0).toString();
    if (call.member() == "CreateSession"_L1)
        return u"CreateSession "_s
            + qdbus_cast<QVariantMap>(arguments.value(0)).value(u"session_handle_token"_s).toString();
    if (call.member() != "BindShortcuts"_L1)
        return call.member();
    QString text = call.member();
    for (const auto &each : qdbus_cast<QList<PortalShortcut>>(arguments.value(1)))
        text += u" %1=%2"_s.arg(each.id, each.properties.value(u"preferred_trigger"_s).toString());
    return text;
}

} // namespace

FakePortal::FakePortal(const QDBusConnection &connection) : m_connection(connection)
{
    m_connection.registerVirtualObject(portal::kPath, this, QDBusConnection::SubPath);
    m_connection.registerService(portal::kService);
}

FakePortal::~FakePortal()
{
    m_connection.unregisterService(portal::kService);
    m_connection.unregisterObject(portal::kPath, QDBusConnection::UnregisterTree);
}

QVariantMap FakePortal::outcome(const QString &method, const QString &sender, const QVariantMap &options)
{
    if (method == "CreateSession"_L1) {
        m_session =
            u"%1/session/%2/%3"_s.arg(portal::kPath, sender, options.value(u"session_handle_token"_s).toString());
        return {{u"session_handle"_s, m_session}};
    }
    if (method != "ListShortcuts"_L1)
        return {};
    QList<PortalShortcut> list;
    for (const QString &id : known)
        list.append({id, {}});
    return {{u"shortcuts"_s, QVariant::fromValue(list)}};
}

bool FakePortal::handleMessage(const QDBusMessage &message, const QDBusConnection &connection)
{
    if (message.member() == "Get"_L1) {
        connection.send(version > 0 ? message.createReply(QVariant::fromValue(QDBusVariant(version)))
                                    : message.createErrorReply(QDBusError::InvalidArgs, u"no such interface"_s));
        return true;
    }
    m_calls << described(message);
    if (message.interface() != portal::kGlobalShortcuts) {
        connection.send(message.createReply());
        return true;
    }
    const auto options = qdbus_cast<QVariantMap>(message.arguments().constLast());
    const QString sender = message.service().mid(1).replace(u'.', u'_');
    const QString path = u"%1/request/%2/%3"_s.arg(portal::kPath, sender, options.value(u"handle_token"_s).toString());
    connection.send(message.createReply(QVariant::fromValue(QDBusObjectPath(path))));
    if (isSilent)
        return true;
    auto signal = QDBusMessage::createSignal(path, u"org.freedesktop.portal.Request"_s, u"Response"_s);
    signal.setArguments({response, outcome(message.member(), sender, options)});
    return connection.send(signal);
}

void FakePortal::press(const QString &session, const QString &id)
{
    auto signal = QDBusMessage::createSignal(portal::kPath, portal::kGlobalShortcuts, u"Activated"_s);
    signal.setArguments({QVariant::fromValue(QDBusObjectPath(session)), id, qulonglong(1), QVariantMap()});
    m_connection.send(signal);
}

void FakePortal::closeSession()
{
    auto signal = QDBusMessage::createSignal(m_session, u"org.freedesktop.portal.Session"_s, u"Closed"_s);
    signal.setArguments({QVariantMap()});
    m_connection.send(signal);
}

} // namespace brimshade::desktop
