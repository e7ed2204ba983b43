#pragma once
#include "platform/Application.h"

#include <vector>

namespace brimshade::app {

// Event monitors that are removed together. Main thread.
class EventMonitorSet {
public:
    explicit EventMonitorSet(platform::Application &application) : m_application(application) { }
    ~EventMonitorSet() { removeAll(); }
    EventMonitorSet(const EventMonitorSet &) = delete;
    EventMonitorSet &operator=(const EventMonitorSet &) = delete;

    void addGlobal(platform::EventMask mask, std::function<void(const platform::Event &)> handler);
    void addLocal(platform::EventMask mask,
                  std::function<std::optional<platform::Event>(const platform::Event &)> handler);
    void removeAll();

private:
    void keep(platform::MonitorToken token);

    platform::Application &m_application;
    std::vector<platform::MonitorToken> m_tokens;
};

} // namespace brimshade::app
