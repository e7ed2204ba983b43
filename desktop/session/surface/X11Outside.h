#pragma once
#include "desktop/session/x11/X11Connection.h"

namespace brimshade::desktop::session {

class ShownSurfaces;

// Presses anywhere on the display, as reported by the devices: without a grab, so that they also reach their target.
class X11Outside : public QObject {
    Q_OBJECT
public:
    X11Outside(X11Connection &connection, const ShownSurfaces &shown);
    void watch(bool on);
    bool isOn() const { return m_isOn; }

Q_SIGNALS:
    void pressed(xcb_timestamp_t time); // the server's time

private:
    void handle(const xcb_generic_event_t &event);
    bool isPointerOutside() const;

    X11Connection &m_connection;
    const ShownSurfaces &m_shown;
    bool m_isOn = false;
};

} // namespace brimshade::desktop::session
