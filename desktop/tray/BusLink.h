#pragma once
#include "desktop/core/Lifetime.h"
#include "platform/Dispatch.h"

#include <QDBusConnection>
#include <QObject>
#include <functional>
#include <memory>

namespace brimshade::desktop::tray {

// Opens a separate connection to the bus, under that name. It may take a while, so it is not called on the main thread.
using ConnectToBus = std::function<QDBusConnection(const QString &name)>;

// A connection to a bus that may come and go: it is opened off the main thread, and again with growing pauses when it
// fails or is lost. Main thread.
class BusLink : public QObject {
    Q_OBJECT
public:
    BusLink(ConnectToBus connect, platform::Dispatch &dispatch);

Q_SIGNALS:
    void connected(const QDBusConnection &bus);
    void failed(); // there is no bus; emitted once until there is one
    void lost(); // after connected()

private Q_SLOTS:
    void disconnected();

private:
    using Connection = std::shared_ptr<const QDBusConnection>; // closed with its last copy

    void open();
    void opened(const Connection &connection);
    void openLater();

    ConnectToBus m_connect;
    platform::Dispatch &m_dispatch;
    Connection m_connection;
    double m_pause = 0; // seconds; 0 while connected and at first
    Lifetime m_lifetime;
};

} // namespace brimshade::desktop::tray
