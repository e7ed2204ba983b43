#pragma once
#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QVariant>
#include <expected>
#include <functional>

namespace brimshade::desktop::tray {

// How long a program may take to answer.
inline constexpr double kAnswerSeconds = 2;

struct BusError {
    QString name; // "org.freedesktop.DBus.Error.UnknownMethod"
    QString text;

    // The program has no such call; it is alive and may have another.
    bool isUnknown() const;
    bool isTimeout() const;
};

// The reply's arguments as plain values (WireValue.h).
using BusReply = std::expected<QVariantList, BusError>;
using ReplyHandler = std::function<void(BusReply)>;

struct BusAddress {
    QString service, path, interface;
};

// Calls and returns at once; the handler runs later on the main thread, at most two seconds later, and never after the
// context or the connection is gone. A call never starts a service.
void callAsync(const QDBusConnection &bus, const BusAddress &to, const QString &method, const QVariantList &arguments,
               QObject *context, ReplyHandler handler);

// The same without a time limit, for an answer that may have to wait for a person.
void callPatiently(const QDBusConnection &bus, const BusAddress &to, const QString &method,
                   const QVariantList &arguments, QObject *context, ReplyHandler handler);

// Calls without asking for an answer, where the outcome does not matter.
void notify(const QDBusConnection &bus, const BusAddress &to, const QString &method, const QVariantList &arguments);

// The bus daemon itself.
BusAddress busDaemon();

} // namespace brimshade::desktop::tray
