#pragma once
#include "BusCall.h"
#include "desktop/core/Lifetime.h"
#include "platform/Dispatch.h"

#include <QObject>

namespace brimshade::desktop::tray {

// Whether a program answers at all. A request that would take effect late, when a sleeping program wakes, waits for
// this. Main thread.
class LifeSign : public QObject {
    Q_OBJECT
public:
    LifeSign(const QDBusConnection &bus, const QString &owner, platform::Dispatch &dispatch);

    void ask(); // ends in heard(), or in silent() after two seconds
    void hear(); // it has answered some other call
    bool isHeard() const { return m_isHeard; } // since it was last asked

Q_SIGNALS:
    void heard();
    void silent(); // heard() may still follow, much later

private:
    void listen();

    QDBusConnection m_bus;
    BusAddress m_peer;
    platform::Dispatch &m_dispatch;
    bool m_isHeard = true;
    bool m_isPinging = false; // one is on its way; a stopped program gets no second one
    bool m_isListening = false;
    Lifetime m_lifetime;
};

} // namespace brimshade::desktop::tray
