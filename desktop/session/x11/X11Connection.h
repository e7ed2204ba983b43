#pragma once
#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <vector>
#include <xcb/xcb.h>

namespace brimshade::desktop::session {

template <class T> using X11Reply = std::unique_ptr<T, decltype([](void *reply) { std::free(reply); })>;

enum class X11Atom {
    Manager,
    NetActiveWindow,
    NetClientListStacking,
    NetCurrentDesktop,
    NetSystemTrayOpcode,
    NetSystemTrayOrientation,
    NetSystemTrayVisual,
    NetWmDesktop,
    NetWmName,
    NetWmState,
    NetWmStateFullscreen,
    NetWmStateHidden,
    NetWmStrut,
    NetWmStrutPartial,
    NetWmWindowType,
    NetWmWindowTypeDesktop,
    NetWmWindowTypeDock,
    XEmbed,
    XEmbedInfo,
    CompositingManager, // the selection owned by the screen's compositing manager
    SystemTray, // the selection whose owner shows the icons that programs dock
    Count,
};

// A separate connection to Qt's X server, to watch what other programs do without going through Qt's event queue: Qt
// selects events on the root window, too, and two clients' masks do not interfere. Used on the thread that opened it,
// which has an event loop. Reads wait for one answer from the server.
class X11Connection : public QObject {
    Q_OBJECT
public:
    static std::unique_ptr<X11Connection> open(); // null if the server does not answer
    ~X11Connection() override;

    xcb_connection_t *xcb() const { return m_connection; }
    const xcb_screen_t &screen() const { return *m_screen; } // the one that DISPLAY names
    xcb_window_t root() const { return m_screen->root; }
    xcb_atom_t atom(X11Atom atom) const { return m_atoms[std::size_t(atom)]; }

    // The answer to a property request: its 32-bit numbers, or its bytes; empty if the window or the property is gone.
    std::vector<std::uint32_t> numbers(xcb_get_property_cookie_t cookie) const;
    QByteArray bytes(xcb_get_property_cookie_t cookie) const;
    xcb_get_property_cookie_t requestNumbers(xcb_window_t window, X11Atom property) const;
    xcb_get_property_cookie_t requestText(xcb_window_t window, xcb_atom_t property) const;
    bool isEventOf(const xcb_generic_event_t &event, const xcb_extension_t &extension, int number) const;

Q_SIGNALS:
    void eventCame(const xcb_generic_event_t &event);

private:
    X11Connection(xcb_connection_t *connection, int screenNumber);
    void readEvents();

    xcb_connection_t *const m_connection;
    const xcb_screen_t *const m_screen;
    std::array<xcb_atom_t, std::size_t(X11Atom::Count)> m_atoms{};
    QSocketNotifier m_notifier;
};

} // namespace brimshade::desktop::session
