#include "desktop/session/xembed/WindowPicture.h"
#include "support/Test.h"

namespace brimshade::desktop::session {

namespace {

QImage pictureOfPixels(const std::vector<quint32> &pixels, QSize size, const PixelLayout &layout)
{
    return pictureOf({reinterpret_cast<const char *>(pixels.data()), qsizetype(4 * pixels.size())}, size, layout);
}

} // namespace

TEST(WindowPictures, KeepAlphaWhereThereIsSomeAndNoColourAboveIt)
{
    const std::vector<quint32> pixels{0x00000000, 0x80402010, 0xff123456, 0x40ffffff};
    const QImage picture = pictureOfPixels(pixels, {2, 2}, {32, false});
    EXPECT_EQ(picture.format(), QImage::Format_ARGB32_Premultiplied);
    const auto stored = [&](int x, int y) { return reinterpret_cast<const QRgb *>(picture.constScanLine(y))[x]; };
    EXPECT_EQ(stored(0, 0), 0x00000000U);
    EXPECT_EQ(stored(1, 0), 0x80402010U);
    EXPECT_EQ(stored(0, 1), 0xff123456U);
    EXPECT_EQ(stored(1, 1), 0x40404040U);
    EXPECT_EQ(pictureOfPixels({0x00123456, 0x00000000}, {2, 1}, {24, false}).pixel(0, 0), 0xff123456U);
    EXPECT_EQ(pictureOfPixels({0x563412ff, 0}, {2, 1}, {32, true}).pixel(0, 0), 0xff123456U);
}

TEST(WindowPictures, NeedAWindowThatWasDrawnAndIsWhole)
{
    EXPECT_TRUE(pictureOfPixels({0, 0, 0, 0}, {2, 2}, {32, false}).isNull());
    EXPECT_TRUE(pictureOfPixels({0x00ff00, 0x00ff00}, {2, 1}, {24, false}).isNull());
    EXPECT_FALSE(pictureOfPixels({0xff00ff00, 0xff00ff00}, {2, 1}, {32, false}).isNull());
    EXPECT_TRUE(pictureOfPixels({1, 2, 3}, {2, 2}, {32, false}).isNull());
    EXPECT_TRUE(pictureOfPixels({1, 2}, {2, 2}, {32, false}).isNull());
    EXPECT_TRUE(pictureOfPixels({}, {0, 0}, {32, false}).isNull());
}

} // namespace brimshade::desktop::session
