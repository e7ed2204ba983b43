#pragma once
#include "DockedItem.h"
#include "WindowPicture.h"
#include "desktop/session/x11/X11Connection.h"

#include <xcb/damage.h>

namespace brimshade::desktop::session {

// A window that a program has docked, in a frame of ours: a window that is mapped, so that the program draws, and has
// no shape, so that nobody sees or hits it. What the program draws goes into a picture. On the connection's thread;
// waits for answers of the server, never for the program.
class DockedWindow {
public:
    // Null for a window that cannot be docked. It gets that size, in pixels a side, and keeps it.
    static std::unique_ptr<DockedWindow> dock(X11Connection &x11, xcb_window_t window, int side);
    ~DockedWindow(); // the program has its window back
    Q_DISABLE_COPY_MOVE(DockedWindow)

    xcb_window_t frame() const { return m_frame; }
    const DockedItem &item() const { return m_item; }
    bool isShown() const { return m_isMapped; }

    void taken() { m_isInFrame = false; } // by its program, or destroyed: it is left where it is
    void mapped(bool isMapped) { m_isMapped = isMapped; }
    void followWish(); // maps or unmaps it, as the program says in a property
    void readTexts();
    void readPicture(); // what is drawn from here on damages it anew
    void refuseGeometry() const; // tells the program that its window stays as it is

    // Where its item is, so that what the program opens comes up there.
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
