#pragma once
#include "platform/Accessibility.h"
#include "platform/EventServices.h"

#include <QStringList>
#include <cstdint>
#include <vector>

namespace brimshade::desktop {

class SharedState;

// A synthetic event as the program posted it.
struct SyntheticEvent {
    platform::CGMouseEvent event;
    double time = 0; // of Dispatch::now()
};

// An action that was requested of an item through Accessibility, even if it was refused.
struct PerformedAction {
    int pid = 0;
    QString identifier; // empty where the item has none
    QString action;
    platform::AXError result = platform::kAXErrorSuccess;
};

// What the program did to the desktop, for scripts and tests. Any thread. The lists hold what came since they were
// last taken, at most the latest 10,000 of each.
class Inspection {
public:
    explicit Inspection(SharedState &state) : m_state(state) { }

    std::vector<SyntheticEvent> takeEvents();
    std::vector<PerformedAction> takeActions();
    QStringList takeOpenedURLs();
    QStringList takeMessages(); // "Relay: Open Relay", as they were shown
    int promptCount() const; // how often the prompt was asked for while permission was missing
    std::uint64_t requestCount() const; // Accessibility attribute reads since the desktop began

private:
    SharedState &m_state;
};

} // namespace brimshade::desktop
