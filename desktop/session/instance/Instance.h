#pragma once
#include "ApplicationService.h"
#include "ItemsService.h"

#include <QDBusConnection>

namespace brimshade::desktop::session {

// Claims to be the one Brimshade of its session: the one that has the name on the message bus. Main thread; needs an
// application object.
class Instance {
public:
    explicit Instance(const QDBusConnection &bus);
    ~Instance(); // gives the name up
    Q_DISABLE_COPY_MOVE(Instance)

    enum class Claim {
        ours,
        anothers, // ask that one, see desktop/session/remote
        noBus, // there is no bus to ask over
    };
    Claim claim();

    // Call it once everything can be done; what the session has asked for since the claim has been waiting.
    void serve(const ApplicationService::Actions &actions, const ItemsService::Actions &items);

private:
    QDBusConnection m_bus;
    Waiting m_waiting;
    ApplicationService m_service{m_waiting};
    ItemsService *const m_items; // the service's
};

} // namespace brimshade::desktop::session
