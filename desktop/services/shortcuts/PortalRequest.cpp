#include "PortalRequest.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {

namespace {

const QString kRequest = u"org.freedesktop.portal.Request"_s;

// The portal builds the object's path from the caller's name and this token, so we can listen for the signal before the
// call.
QString newToken()
{
    return u"brimshade%1"_s.arg(QRandomGenerator::global()->generate64());
}

} // namespace

PortalRequest::PortalRequest(const QDBusConnection &bus, const QString &method, const QVariantList &arguments,
                             QVariantMap options, std::optional<std::chrono::milliseconds> limit, Handler handler)
    : m_bus(bus), m_handler(std::move(handler))
{
    const QString token = newToken();
    const QString sender = bus.baseService().mid(1).replace(u'.', u'_');
    m_path = u"%1/request/%2/%3"_s.arg(portal::kPath, sender, token);
    m_bus.connect(portal::kService, m_path, kRequest, u"Response"_s, this, SLOT(answered(uint, QVariantMap)));

    options.insert(u"handle_token"_s, token);
    auto call = QDBusMessage::createMethodCall(portal::kService, portal::kPath, portal::kGlobalShortcuts, method);
    call.setArguments(arguments + QVariantList{options});
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](const QDBusPendingCallWatcher *finished) {
        if (finished->isError())
            finish({});
    });
    m_limit.setSingleShot(true);
    connect(&m_limit, &QTimer::timeout, this, [this] { finish({}); });
    if (limit)
        m_limit.start(*limit);
}

void PortalRequest::withdraw()
{
    m_handler = nullptr;
    m_bus.send(QDBusMessage::createMethodCall(portal::kService, m_path, kRequest, u"Close"_s));
}

void PortalRequest::answered(uint response, const QVariantMap &results)
{
    finish(response == 0 ? std::optional(results) : std::nullopt);
}

void PortalRequest::finish(std::optional<QVariantMap> results)
{
    m_limit.stop();
    if (const Handler handler = std::exchange(m_handler, nullptr))
        handler(std::move(results));
}

} // namespace brimshade::desktop
