#pragma once
#include "DockedItem.h"
#include "WindowPicture.h"
#include "desktop/session/x11/X11Connection.h"

#include <xcb/damage.h>

namespace brimshade::desktop::session {

// A window that a program has docked, inside a frame of ours: a window that is mapped, so that the program draws, and
// has an empty shape, so that nobody sees or hits it. What the program draws goes into a picture. On the connection's
// thread; waits for the server, never for the program.
class DockedWindow {
public:
    // Null for a window that cannot be docked. It gets and keeps that size, in pixels per side.
    static std::unique_ptr<DockedWindow> dock(X11Connection &x11, xcb_window_t window, int side);
    ~DockedWindow(); // gives the program its window back
    Q_DISABLE_COPY_MOVE(DockedWindow)

    xcb_window_t frame() const { return m_frame; }
    const DockedItem &item() const { return m_item; }
    bool isShown() const { return m_isMapped; }

    void taken() { m_isInFrame = false; } // its program took it away or destroyed it; it is left alone
    void mapped(bool isMapped) { m_isMapped = isMapped; }
    void followWish(); // maps or unmaps it as the program's property says
    void readTexts();
    void readPicture(); // later drawing is reported as new damage
    void refuseGeometry() const; // tells the program that its window stays as it is

    // The click is made at its item's place, so that what the program opens comes up there.
    void click(const DockedClick &click, xcb_timestamp_t time);

private:
    DockedWindow(X11Connection &x11, xcb_window_t window, int side, const PixelLayout &layout, xcb_visualid_t visual);
    void makeFrame(xcb_visualid_t visual);
    void embed();
    int processId() const;
    void moveBelow(QPoint point);

    X11Connection &m_x11;
    const xcb_window_t m_window;
    const int m_side;
    const PixelLayout m_layout;
    const xcb_window_t m_frame;
    const xcb_colormap_t m_colours;
    const xcb_damage_damage_t m_damage;
    QPoint m_corner; // of the frame, in the root window
    DockedItem m_item;
    bool m_isMapped = false;
    bool m_isInFrame = true;
};

} // namespace brimshade::desktop::session
