#pragma once
#include "EventMonitors.h"

#include <QObject>

namespace brimshade::desktop {

class SharedState;
class WindowStack;

// The program, seen as the toolkit's application object. Main thread.
class ProgramApplication : public QObject, public platform::Application {
    Q_OBJECT
public:
    ProgramApplication(const SharedState &state, WindowStack &windows) : m_state(state), m_windows(windows) { }

    void setActivationPolicyAccessory() override { } // the bar's application menus are never this program's
    void activate() override;
    void terminate() override { Q_EMIT terminated(); }
    std::optional<platform::NSEventType> currentEventType() const override { return m_current; }
    QPointF mouseLocation() const override;

    platform::MonitorToken addGlobalMonitor(platform::EventMask mask, EventMonitors::Global handler) override;
    platform::MonitorToken addLocalMonitor(platform::EventMask mask, EventMonitors::Local handler) override;
    void removeMonitor(platform::MonitorToken token) override { m_monitors.remove(token); }

    const EventMonitors &monitors() const { return m_monitors; }

    // While it lives, the program is handling an event of this type.
    class Handling {
    public:
        Handling(ProgramApplication &application, platform::NSEventType type)
            : m_application(application), m_previous(std::exchange(application.m_current, type))
        {
        }
        ~Handling() { m_application.m_current = m_previous; }
        Q_DISABLE_COPY_MOVE(Handling)

    private:
        ProgramApplication &m_application;
        std::optional<platform::NSEventType> m_previous;
    };

Q_SIGNALS:
    void terminated();

private:
    const SharedState &m_state;
    WindowStack &m_windows;
    EventMonitors m_monitors;
    std::optional<platform::NSEventType> m_current;
};

} // namespace brimshade::desktop
