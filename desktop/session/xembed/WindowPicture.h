#pragma once
#include <QByteArrayView>
#include <QImage>
#include <optional>
#include <xcb/xcb.h>

namespace brimshade::desktop::session {

// How a server sends the pixels of windows with a given visual.
struct PixelLayout {
    int depth = 0;
    bool isSwapped = false; // compared with this machine's byte order

    bool hasAlpha() const { return depth == 32; }
};

// Absent unless it has 8 bits per colour in 32 bits per pixel, red above blue: no other pictures are read.
std::optional<PixelLayout> layoutOf(const xcb_setup_t &setup, const xcb_screen_t &screen, xcb_visualid_t visual);

// The screen's visual for windows with alpha; XCB_NONE if it has none.
xcb_visualid_t visualWithAlpha(const xcb_screen_t &screen);

// Converts an answer to GetImage in Z format. Null if the number of bytes does not match the size, or if nothing was
// drawn: everything is transparent or, without alpha, of one colour.
QImage pictureOf(QByteArrayView pixels, QSize size, const PixelLayout &layout);

} // namespace brimshade::desktop::session
