#pragma once
#include <QByteArrayView>
#include <QImage>
#include <optional>
#include <xcb/xcb.h>

namespace brimshade::desktop::session {

// How a server sends the pixels of windows with one visual.
struct PixelLayout {
    int depth = 0;
    bool isSwapped = false; // against this machine's order of bytes

    bool hasAlpha() const { return depth == 32; }
};

// Absent unless it has 8 bits a colour in 32 bits a pixel, red above blue: no other pictures are read.
std::optional<PixelLayout> layoutOf(const xcb_setup_t &setup, const xcb_screen_t &screen, xcb_visualid_t visual);

// The screen's visual for windows with alpha; XCB_NONE when it has none.
xcb_visualid_t visualWithAlpha(const xcb_screen_t &screen);

// Of an answer to GetImage in Z format. Null when there are not as many bytes as the size says, or when nothing was
// drawn: all is transparent, or without alpha all of one colour.
QImage pictureOf(QByteArrayView pixels, QSize size, const PixelLayout &layout);

} // namespace brimshade::desktop::session
