// Whole messages of the bus: those that libdbus accepts go over a real connection, are unpacked, and are read as an
// item's properties and as a menu.
#include "Expect.h"
#include "desktop/tray/MenuLayout.h"
#include "desktop/tray/Pixmap.h"
#include "desktop/tray/ShortcutText.h"
#include "desktop/tray/TrayItem.h"
#include "desktop/tray/WireValue.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServer>
#include <QDBusVirtualObject>
#include <QEventLoop>
#include <QTimer>
#include <dbus/dbus.h>
#include <functional>

using namespace Qt::StringLiterals;
using namespace brimshade;

namespace {

constexpr auto kMarker = "/marker"; // sent after every message; libdbus keeps their order
constexpr int kDeadline = 5000; // milliseconds

void read(const QVariantList &wire)
{
    const QVariantList plain = desktop::tray::plainArguments(wire);
    for (const QVariant &value : plain) {
        QStringList complaints;
        desktop::tray::parseItem(value.toMap());
        desktop::tray::parseLayout(value, {});
        desktop::tray::largestPixmap(value, complaints);
        desktop::tray::shortcutText(value);
    }
}

// Accepts every call.
class Receiver : public QDBusVirtualObject {
public:
    std::function<void()> onMarker;

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &) override
    {
        if (message.path() == QLatin1String(kMarker))
            onMarker();
        else
            read(message.arguments());
        return true;
    }
};

class Wire {
public:
    Wire()
    {
        QEventLoop untilConnected;
        QObject::connect(&m_server, &QDBusServer::newConnection, &untilConnected, [&](QDBusConnection connection) {
            connection.registerVirtualObject(u"/"_s, &m_receiver, QDBusConnection::SubPath);
            untilConnected.quit();
        });
        m_sender = dbus_connection_open_private(m_server.address().toUtf8().constData(), nullptr);
        fuzz::expect(m_sender, "a connection");
        wait(untilConnected, "the other end of the connection");
    }
    ~Wire()
    {
        dbus_connection_close(m_sender);
        dbus_connection_unref(m_sender);
    }
    Q_DISABLE_COPY_MOVE(Wire)

    void send(DBusMessage *message)
    {
        QEventLoop untilMarker;
        m_receiver.onMarker = [&] { untilMarker.quit(); };
        DBusMessage *marker = dbus_message_new_method_call(nullptr, kMarker, "org.example.Fuzz", "Marker");
        for (DBusMessage *each : {message, marker}) {
            dbus_message_set_no_reply(each, true);
            dbus_connection_send(m_sender, each, nullptr);
        }
        dbus_connection_flush(m_sender);
        dbus_message_unref(marker);
        wait(untilMarker, "the message");
    }

private:
    static void wait(QEventLoop &loop, const char *what)
    {
        QTimer::singleShot(kDeadline, &loop, [&loop] { loop.exit(1); });
        fuzz::expect(loop.exec() == 0, what);
    }

    QDBusServer m_server;
    Receiver m_receiver;
    DBusConnection *m_sender = nullptr;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static int count = 0;
    static QCoreApplication application(count, nullptr);
    static Wire wire;
    DBusMessage *message =
        dbus_message_demarshal(reinterpret_cast<const char *>(data), static_cast<int>(size), nullptr);
    if (!message)
        return -1; // not worth keeping
    const bool isCall = dbus_message_get_type(message) == DBUS_MESSAGE_TYPE_METHOD_CALL
        && dbus_message_set_path(message, "/values") && dbus_message_set_member(message, "Values");
    if (isCall)
        wire.send(message);
    dbus_message_unref(message);
    return isCall ? 0 : -1;
}
