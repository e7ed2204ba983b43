#pragma once
#include "desktop/session/x11/X11Connection.h"

namespace brimshade::desktop::session {

// The selection of the screen's tray: whoever owns it shows the windows that programs dock. It is taken as soon as
// nobody has it, and left to whoever takes it. On the connection's thread.
class TraySelection : public QObject {
    Q_OBJECT
public:
    explicit TraySelection(X11Connection &x11);
    ~TraySelection() override;

    xcb_window_t window() const { return m_window; } // that programs send their wishes to; XCB_WINDOW_NONE without
    void askTime(); // the server's, which timeCame reports; does nothing without a window

Q_SIGNALS:
    void lost(); // while the window is there: programs turn to the next owner when it goes
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
