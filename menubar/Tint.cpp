#include "Labels.h"

#include <algorithm>
#include <array>

namespace brimshade::menubar {

namespace {

constexpr double kSmallestAlpha = 0.01;
constexpr double kSaturationFactor = 1.4;
constexpr double kSmallestBrightness = 0.75;

struct Rgb {
    double red, green, blue;
};

// Premultiplied red, green, blue and alpha from 0 to 1: the picture scaled into one pixel of eight bits a component.
std::array<double, 4> averagePixel(const QImage &bitmap)
{
    const QImage pixels = bitmap.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    const int width = pixels.width();
    const int height = pixels.height();
    std::array<quint64, 4> sums{};
    for (int y = 0; y < height; ++y) {
        const uchar *pixel = pixels.constScanLine(y);
        for (int x = 0; x < width; ++x, pixel += 4)
            for (int component = 0; component < 4; ++component)
                sums[component] += pixel[component];
    }
    const quint64 count = quint64(width) * height;
    std::array<double, 4> average{};
    std::ranges::transform(sums, average.begin(), [&](quint64 sum) {
        const quint64 rounded = (sum + count / 2) / count;
        return double(rounded) / 255;
    });
    return average;
}

// Keeps the hue; saturation and brightness as in the HSB model.
Rgb vivid(const Rgb &colour)
{
    const auto [lowest, highest] = std::minmax({colour.red, colour.green, colour.blue});
    const double brightness = std::max(highest, kSmallestBrightness);
    if (highest == lowest)
        return {brightness, brightness, brightness};
    const double saturation = std::min((highest - lowest) / highest * kSaturationFactor, 1.0);
    const auto component = [&, high = highest, low = lowest](double value) {
        return brightness * (1 - saturation * (high - value) / (high - low));
    };
    return {component(colour.red), component(colour.green), component(colour.blue)};
}

float unit(double value)
{
    return static_cast<float>(std::clamp(value, 0.0, 1.0));
}

} // namespace

QColor tint(const platform::Image &icon)
{
    const QImage bitmap = icon.bitmap();
    if (bitmap.isNull())
        return Qt::white;
    const auto [red, green, blue, alpha] = averagePixel(bitmap);
    const double opaque = std::max(alpha, kSmallestAlpha);
    const Rgb colour = vivid({red / opaque, green / opaque, blue / opaque});
    return QColor::fromRgbF(unit(colour.red), unit(colour.green), unit(colour.blue));
}

QColor tintWithoutIcon()
{
    return QColor::fromRgbF(0.75F, 0.75F, 0.75F);
}

} // namespace brimshade::menubar
