#pragma once
#include "BusCall.h"
#include "Surroundings.h"
#include "desktop/core/Lifetime.h"
#include "platform/Dispatch.h"

namespace brimshade::desktop::tray {

// Allows an item's program to bring up its windows in answer to the next request. Main thread; the surroundings outlive
// it.
class Activation {
public:
    Activation(const QDBusConnection &bus, const BusAddress &item, const Surroundings &surroundings,
               platform::Dispatch &dispatch);

    // Gives the program a token, then runs ask. Without tokens in this session, ask runs at once; if no token comes for
    // a while, it runs without one.
    void provide(platform::Work ask);

private:
    QDBusConnection m_bus;
    BusAddress m_item;
    const Surroundings &m_surroundings;
    platform::Dispatch &m_dispatch;
    Lifetime m_lifetime;
};

} // namespace brimshade::desktop::tray
