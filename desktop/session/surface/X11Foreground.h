#pragma once
#include "Foreground.h"
#include "desktop/session/x11/X11Connection.h"

#include <QRect>
#include <QSet>

namespace brimshade::desktop::session {

class ShownSurfaces;

// Uses what the window manager says about its clients. A screen is covered if a full-screen window on it has the focus
// or is the topmost one there.
class X11Foreground : public Foreground {
    Q_OBJECT
public:
    X11Foreground(X11Connection &connection, const ShownSurfaces &shown);

private:
    struct Client;
    struct Reads;

    void handle(const xcb_generic_event_t &event);
    void updateSoon();
    void update();
    void follow(const std::vector<std::uint32_t> &clients);
    std::vector<Client> seenClients(const std::vector<std::uint32_t> &clients, std::uint32_t desktop) const;
    Reads request(xcb_window_t window) const;
    Client read(const Reads &reads, std::uint32_t desktop) const;
    bool covers(const QScreen *screen, const std::vector<Client> &clients, xcb_window_t active) const;
    QString className(xcb_window_t window) const;

    X11Connection &m_connection;
    const ShownSurfaces &m_shown;
    QSet<xcb_window_t> m_followed; // windows whose properties are followed
    bool m_isStale = false;
};

} // namespace brimshade::desktop::session
