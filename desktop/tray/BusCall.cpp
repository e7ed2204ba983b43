#include "BusCall.h"

#include "WireValue.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <limits>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::tray {

namespace {

constexpr int kTimeLimit = static_cast<int>(kAnswerSeconds * 1000); // milliseconds
constexpr int kNoTimeLimit = std::numeric_limits<int>::max();

QDBusMessage makeCall(const BusAddress &to, const QString &method, const QVariantList &arguments)
{
    auto message = QDBusMessage::createMethodCall(to.service, to.path, to.interface, method);
    message.setArguments(arguments);
    message.setAutoStartService(false);
    return message;
}

BusReply readReply(const QDBusPendingCall &call)
{
    if (call.isError())
        return std::unexpected(BusError{call.error().name(), call.error().message()});
    return plainArguments(call.reply().arguments());
}

void call(const QDBusConnection &bus, const QDBusMessage &message, int timeLimit, QObject *context,
          ReplyHandler handler)
{
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(message, timeLimit), context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context,
                     [bus, handler = std::move(handler)](QDBusPendingCallWatcher *finished) {
                         finished->deleteLater();
                         if (bus.isConnected()) // otherwise the connection's owner learns that it has ended
                             handler(readReply(*finished));
                     });
}

} // namespace

bool BusError::isUnknown() const
{
    return name.startsWith(u"org.freedesktop.DBus.Error.Unknown");
}

bool BusError::isTimeout() const
{
    return name == u"org.freedesktop.DBus.Error.NoReply" || name == u"org.freedesktop.DBus.Error.Timeout"
        || name == u"org.freedesktop.DBus.Error.TimedOut";
}

void callAsync(const QDBusConnection &bus, const BusAddress &to, const QString &method, const QVariantList &arguments,
               QObject *context, ReplyHandler handler)
{
    call(bus, makeCall(to, method, arguments), kTimeLimit, context, std::move(handler));
}

void callPatiently(const QDBusConnection &bus, const BusAddress &to, const QString &method,
                   const QVariantList &arguments, QObject *context, ReplyHandler handler)
{
    call(bus, makeCall(to, method, arguments), kNoTimeLimit, context, std::move(handler));
}

void notify(const QDBusConnection &bus, const BusAddress &to, const QString &method, const QVariantList &arguments)
{
    bus.send(makeCall(to, method, arguments));
}

BusAddress busDaemon()
{
    return {u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s};
}

} // namespace brimshade::desktop::tray
