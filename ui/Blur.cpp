#include "Blur.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace brimshade::ui {

namespace {

// One pass of a moving average of `2 * half + 1` values, `stride` apart; outside is 0.
void averageLine(std::vector<float> &values, std::size_t first, std::size_t stride, int count, int half,
                 std::vector<float> &line)
{
    for (int i = 0; i < count; ++i)
        line[std::size_t(i)] = values[first + std::size_t(i) * stride];
    const auto at = [&](int i) { return i < 0 || i >= count ? 0.0F : line[std::size_t(i)]; };
    float sum = 0;
    for (int i = 0; i <= half; ++i)
        sum += at(i);
    const float share = 1.0F / float(2 * half + 1);
    for (int i = 0; i < count; ++i) {
        values[first + std::size_t(i) * stride] = sum * share;
        sum += at(i + half + 1) - at(i - half);
    }
}

// The half widths of three averages, which together differ from a Gaussian by a few percent, chosen so that the
// variances add up.
std::array<int, 3> halfWidths(double deviation)
{
    const double ideal = std::sqrt(12 * deviation * deviation / 3 + 1);
    int lower = int(std::floor(ideal));
    lower -= lower % 2 == 0 ? 1 : 0;
    const double count = (12 * deviation * deviation - 3.0 * lower * lower - 12.0 * lower - 9) / (-4.0 * lower - 4);
    const int small = std::clamp(int(std::round(count)), 0, 3);
    std::array<int, 3> result{};
    for (int i = 0; i < 3; ++i)
        result[std::size_t(i)] = std::max(0, (i < small ? lower : lower + 2) / 2);
    return result;
}

void blurPlane(std::vector<float> &values, int width, int height, double deviation)
{
    std::vector<float> line(std::size_t(std::max(width, height)));
    for (const int half : halfWidths(deviation)) {
        for (int y = 0; y < height; ++y)
            averageLine(values, std::size_t(y) * std::size_t(width), 1, width, half, line);
        for (int x = 0; x < width; ++x)
            averageLine(values, std::size_t(x), std::size_t(width), height, half, line);
    }
}

// One of the `count` bytes of each pixel.
std::vector<float> plane(const QImage &picture, int index, int count)
{
    std::vector<float> values;
    values.reserve(std::size_t(picture.width()) * std::size_t(picture.height()));
    for (int y = 0; y < picture.height(); ++y) {
        const uchar *byte = picture.constScanLine(y) + index;
        for (int x = 0; x < picture.width(); ++x, byte += count)
            values.push_back(*byte);
    }
    return values;
}

} // namespace

QImage blurredSilhouette(const QImage &picture, const QColor &color, double deviation)
{
    const QImage alpha = picture.convertToFormat(QImage::Format_Alpha8);
    const int width = alpha.width();
    const int height = alpha.height();
    std::vector<float> values = plane(alpha, 0, 1);
    blurPlane(values, width, height, deviation);

    QImage result(width, height, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < height; ++y) {
        auto *pixels = reinterpret_cast<QRgb *>(result.scanLine(y));
        for (int x = 0; x < width; ++x) {
            const float a = values[std::size_t(y) * std::size_t(width) + std::size_t(x)] * color.alphaF();
            pixels[x] = qPremultiply(qRgba(color.red(), color.green(), color.blue(), int(std::lround(a))));
        }
    }
    return result;
}

QImage blurred(const QImage &picture, double deviation)
{
    constexpr int kPlanes = 4;
    QImage result = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (int index = 0; index < kPlanes; ++index) {
        std::vector<float> values = plane(result, index, kPlanes);
        blurPlane(values, result.width(), result.height(), deviation);
        for (int y = 0; y < result.height(); ++y) {
            uchar *byte = result.scanLine(y) + index;
            for (int x = 0; x < result.width(); ++x, byte += kPlanes)
                *byte = uchar(std::lround(values[std::size_t(y) * std::size_t(result.width()) + std::size_t(x)]));
        }
    }
    return result;
}

} // namespace brimshade::ui
