#pragma once
#include "desktop/session/x11/X11Connection.h"

namespace brimshade::desktop::session {

// The selection of the screen's tray: its owner shows the windows that programs dock. It is taken as soon as nobody has
// it, and given up to anyone who takes it. On the connection's thread.
class TraySelection : public QObject {
    Q_OBJECT
public:
    explicit TraySelection(X11Connection &x11);
    ~TraySelection() override;

    xcb_window_t window() const { return m_window; } // gets the programs' requests; XCB_WINDOW_NONE if there is none
    void askTime(); // the answer is timeCame; does nothing without a window

Q_SIGNALS:
    void lost(); // the window still exists: programs turn to the next owner when it goes
    void timeCame(xcb_timestamp_t time);

private:
    void handle(const xcb_generic_event_t &event);
    void follow();
    void prepare();
    void take(xcb_timestamp_t time);
    void leave();
    xcb_window_t owner() const;
    void write(X11Atom property, xcb_atom_t type, std::uint32_t value) const;

    X11Connection &m_x11;
    xcb_window_t m_window = XCB_WINDOW_NONE;
    bool m_isOwned = false;
};

} // namespace brimshade::desktop::session
