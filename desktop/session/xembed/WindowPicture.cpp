#include "WindowPicture.h"

#include <QtEndian>
#include <algorithm>

namespace brimshade::desktop::session {

namespace {

constexpr int kAlphaDepth = 32, kOpaqueDepth = 24;
constexpr int kBytesPerPixel = 4;

struct FoundVisual {
    const xcb_visualtype_t *type = nullptr;
    int depth = 0;
};

template <class Holds> FoundVisual findVisual(const xcb_screen_t &screen, Holds holds)
{
    for (auto depths = xcb_screen_allowed_depths_iterator(&screen); depths.rem; xcb_depth_next(&depths)) {
        for (auto types = xcb_depth_visuals_iterator(depths.data); types.rem; xcb_visualtype_next(&types)) {
            if (const FoundVisual found{types.data, depths.data->depth}; holds(found))
                return found;
        }
    }
    return {};
}

bool isReadable(const FoundVisual &visual)
{
    const bool isTrueColour = visual.type->_class == XCB_VISUAL_CLASS_TRUE_COLOR;
    const bool isRedAboveBlue =
        visual.type->red_mask == 0xff0000 && visual.type->green_mask == 0xff00 && visual.type->blue_mask == 0xff;
    return isTrueColour && isRedAboveBlue && (visual.depth == kAlphaDepth || visual.depth == kOpaqueDepth);
}

int bitsPerPixel(const xcb_setup_t &setup, int depth)
{
    for (auto formats = xcb_setup_pixmap_formats_iterator(&setup); formats.rem; xcb_format_next(&formats)) {
        if (formats.data->depth == depth)
            return formats.data->bits_per_pixel;
    }
    return 0;
}

// Colours should be premultiplied with alpha, but a program may violate that.
QRgb soundPixel(QRgb pixel)
{
    const int alpha = qAlpha(pixel);
    return qRgba(std::min(qRed(pixel), alpha), std::min(qGreen(pixel), alpha), std::min(qBlue(pixel), alpha), alpha);
}

QImage readPixels(QByteArrayView pixels, QSize size, const PixelLayout &layout)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    const auto *from = reinterpret_cast<const uchar *>(pixels.data());
    for (int y = 0; y < size.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x, from += kBytesPerPixel) {
            const auto sent = qFromUnaligned<quint32>(from);
            const QRgb pixel = layout.isSwapped ? qbswap(sent) : sent;
            line[x] = layout.hasAlpha() ? soundPixel(pixel) : pixel | 0xff000000;
        }
    }
    return image;
}

bool isEmpty(const QImage &image, const PixelLayout &layout)
{
    const QRgb first = image.pixel(0, 0);
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        if (!std::all_of(line, line + image.width(), [first](QRgb pixel) { return pixel == first; }))
            return false;
    }
    return !layout.hasAlpha() || qAlpha(first) == 0;
}

} // namespace

std::optional<PixelLayout> layoutOf(const xcb_setup_t &setup, const xcb_screen_t &screen, xcb_visualid_t visual)
{
    const auto found = findVisual(screen, [visual](const FoundVisual &each) { return each.type->visual_id == visual; });
    if (!found.type || !isReadable(found) || bitsPerPixel(setup, found.depth) != 8 * kBytesPerPixel)
        return {};
    const bool isMostFirst = setup.image_byte_order == XCB_IMAGE_ORDER_MSB_FIRST;
    return PixelLayout{found.depth, isMostFirst != (Q_BYTE_ORDER == Q_BIG_ENDIAN)};
}

xcb_visualid_t visualWithAlpha(const xcb_screen_t &screen)
{
    const auto found =
        findVisual(screen, [](const FoundVisual &each) { return each.depth == kAlphaDepth && isReadable(each); });
    return found.type ? found.type->visual_id : xcb_visualid_t(XCB_NONE);
}

QImage pictureOf(QByteArrayView pixels, QSize size, const PixelLayout &layout)
{
    if (size.isEmpty() || pixels.size() != qsizetype(size.width()) * size.height() * kBytesPerPixel)
        return {};
    const QImage image = readPixels(pixels, size, layout);
    return isEmpty(image, layout) ? QImage() : image;
}

} // namespace brimshade::desktop::session
