#include "Wallpaper.h"

#include <QLinearGradient>
#include <QPainterPath>
#include <QRadialGradient>
#include <QRandomGenerator>
#include <cmath>
#include <numbers>

namespace brimshade::desktop {

namespace {

// All coordinates are relative to the picture: 0 to 1 from left to right and from top to bottom.
constexpr double kHorizon = 0.66;
constexpr QPointF kSun{0.615, 0.595};

struct Ridge {
    double height; // of its middle line above the horizon
    double relief;
    double frequency;
    double phase;
    QRgb top, bottom;
};

constexpr Ridge kRidges[] = {
    {0.120, 0.052, 1.35, 0.4, 0xff8c6f9c, 0xffc78a9a},
    {0.078, 0.046, 1.90, 2.1, 0xff6a5590, 0xff9d7398},
    {0.038, 0.040, 2.60, 4.4, 0xff463c78, 0xff6f568c},
};

double ridgeLine(const Ridge &ridge, double x)
{
    const double t = 2 * std::numbers::pi * ridge.frequency * x + ridge.phase;
    const double wave = 0.56 * std::sin(t) + 0.27 * std::sin(2.3 * t + 1.1) + 0.11 * std::sin(5.1 * t + 0.3)
        + 0.045 * std::sin(11.7 * t) + 0.02 * std::sin(23.0 * t + 2.0);
    return ridge.height + ridge.relief * wave;
}

// Above the horizon, or its reflection below.
QPainterPath ridgePath(const Ridge &ridge, const QSizeF &size, bool isReflected)
{
    const double horizon = kHorizon * size.height();
    const double direction = isReflected ? 0.62 : -1;
    QPainterPath path(QPointF(0, horizon));
    for (double x = 0; x <= size.width() + 2; x += 2)
        path.lineTo(x, horizon + direction * std::max(0.0, ridgeLine(ridge, x / size.width())) * size.height());
    path.lineTo(size.width() + 2, horizon);
    return path;
}

void paintSky(QPainter &painter, const QSizeF &size)
{
    QLinearGradient sky(0, 0, 0, kHorizon * size.height());
    sky.setColorAt(0, QColor(0x17, 0x1b, 0x45));
    sky.setColorAt(0.30, QColor(0x3a, 0x35, 0x78));
    sky.setColorAt(0.55, QColor(0x7d, 0x54, 0x9a));
    sky.setColorAt(0.76, QColor(0xd6, 0x78, 0x97));
    sky.setColorAt(0.90, QColor(0xf7, 0xa0, 0x82));
    sky.setColorAt(1, QColor(0xff, 0xcf, 0x9a));
    painter.fillRect(QRectF({}, size), sky);

    const QPointF sun(kSun.x() * size.width(), kSun.y() * size.height());
    QRadialGradient glow(sun, 0.55 * size.width());
    glow.setColorAt(0, QColor(255, 214, 150, 210));
    glow.setColorAt(0.18, QColor(255, 170, 120, 110));
    glow.setColorAt(0.5, QColor(255, 130, 130, 34));
    glow.setColorAt(1, QColor(255, 120, 140, 0));
    painter.fillRect(QRectF({}, size), glow);
    QRadialGradient disc(sun, 0.028 * size.width());
    disc.setColorAt(0, QColor(255, 250, 232));
    disc.setColorAt(0.86, QColor(255, 244, 214));
    disc.setColorAt(1, QColor(255, 232, 190, 0));
    painter.setBrush(disc);
    painter.drawEllipse(sun, 0.028 * size.width(), 0.028 * size.width());
}

void paintStars(QPainter &painter, const QSizeF &size)
{
    QRandomGenerator random(11); // the same sky each time
    for (int i = 0; i < 150; ++i) {
        const double height = std::pow(random.generateDouble(), 1.5) * 0.34;
        const double radius = 0.35 + 0.75 * std::pow(random.generateDouble(), 3);
        const double light = (1 - height / 0.36) * (0.25 + 0.6 * random.generateDouble());
        painter.setBrush(QColor::fromRgbF(1, 0.97f, 0.93f, float(light)));
        painter.drawEllipse(QPointF(random.generateDouble() * size.width(), height * size.height()), radius, radius);
    }
}

// Long thin veils, lit from below.
void paintClouds(QPainter &painter, const QSizeF &size)
{
    struct Veil {
        double x, y, width, height;
        int alpha;
    };
    constexpr Veil veils[] = {
        {0.20, 0.300, 0.62, 0.020, 60}, {0.74, 0.235, 0.50, 0.016, 46}, {0.50, 0.385, 0.70, 0.018, 70},
        {0.86, 0.430, 0.46, 0.014, 90}, {0.12, 0.455, 0.44, 0.013, 84}, {0.55, 0.490, 0.40, 0.009, 96},
    };
    for (const Veil &veil : veils) {
        painter.save();
        painter.translate(veil.x * size.width(), veil.y * size.height());
        painter.scale(veil.width * size.width() / 2, veil.height * size.height());
        QRadialGradient light(QPointF(), 1);
        light.setColorAt(0, QColor(255, 196, 186, veil.alpha));
        light.setColorAt(0.6, QColor(255, 170, 180, veil.alpha / 3));
        light.setColorAt(1, QColor(255, 160, 180, 0));
        painter.fillRect(QRectF(-1, -1, 2, 2), light);
        painter.restore();
    }
}

void paintHills(QPainter &painter, const QSizeF &size)
{
    for (const Ridge &ridge : kRidges) {
        QLinearGradient shade(0, (kHorizon - ridge.height - ridge.relief) * size.height(), 0, kHorizon * size.height());
        shade.setColorAt(0, QColor(ridge.top));
        shade.setColorAt(1, QColor(ridge.bottom));
        painter.fillPath(ridgePath(ridge, size, false), shade);
    }
}

void paintLake(QPainter &painter, const QSizeF &size)
{
    const QRectF lake(0, kHorizon * size.height(), size.width(), (1 - kHorizon) * size.height());
    QLinearGradient water(lake.topLeft(), lake.bottomLeft());
    water.setColorAt(0, QColor(0xf0, 0xa2, 0x90));
    water.setColorAt(0.16, QColor(0xb8, 0x72, 0x98));
    water.setColorAt(0.48, QColor(0x56, 0x45, 0x86));
    water.setColorAt(1, QColor(0x1b, 0x1d, 0x4a));
    painter.fillRect(lake, water);
    for (const Ridge &ridge : kRidges) {
        QLinearGradient shade(lake.topLeft(), QPointF(0, lake.top() + 0.11 * size.height()));
        QColor color(ridge.bottom);
        color.setAlpha(150);
        shade.setColorAt(0, color);
        color.setAlpha(0);
        shade.setColorAt(1, color);
        painter.fillPath(ridgePath(ridge, size, true), shade);
    }
}

// The sun's path on the water, and quiet ripples that widen towards the viewer.
void paintRipples(QPainter &painter, const QSizeF &size)
{
    QRandomGenerator random(5);
    const double top = kHorizon * size.height();
    const double depth = (1 - kHorizon) * size.height();
    for (int i = 0; i < 520; ++i) {
        const double far = random.generateDouble();
        const double near = far * far; // dense at the horizon
        const bool isLit = i % 3 != 0;
        const double spread = (isLit ? 0.022 + 0.10 * near : 0.9) * size.width();
        const double x =
            (isLit ? kSun.x() : 0.5) * size.width() + (random.generateDouble() + random.generateDouble() - 1) * spread;
        const double length = (0.006 + 0.035 * near) * size.width() * (0.4 + random.generateDouble());
        const double thickness = 0.6 + 2.2 * near;
        const int alpha = int((isLit ? 130 * (1 - near) : 26) * (0.4 + 0.6 * random.generateDouble()));
        painter.setBrush(isLit ? QColor(255, 214, 170, alpha) : QColor(255, 200, 210, alpha));
        painter.drawEllipse(QPointF(x, top + 2 + near * depth), length, thickness);
    }
}

// A dark shore in front with a few firs, so that the dock stands on something quiet.
void paintShore(QPainter &painter, const QSizeF &size)
{
    QPainterPath shore(QPointF(0, size.height()));
    const auto line = [&](double x) {
        return size.height()
            * (0.93 - 0.075 * std::pow(std::abs(x - 0.56) * 1.9, 1.7) - 0.006 * std::sin(17 * x)
               - 0.003 * std::sin(41 * x));
    };
    for (double x = 0; x <= size.width() + 2; x += 2)
        shore.lineTo(x, line(x / size.width()));
    shore.lineTo(size.width() + 2, size.height());
    QLinearGradient shade(0, 0.8 * size.height(), 0, size.height());
    shade.setColorAt(0, QColor(0x26, 0x22, 0x50));
    shade.setColorAt(1, QColor(0x0c, 0x0e, 0x28));
    painter.fillPath(shore, shade);

    QRandomGenerator random(23);
    QPainterPath firs;
    for (int i = 0; i < 74; ++i) {
        const bool isLeft = i < 40;
        const double reach = std::pow(random.generateDouble(), 1.35);
        const double x = isLeft ? 0.27 * reach : 1 - 0.20 * reach;
        const double height = size.height() * (0.035 + 0.10 * (1 - reach) * (0.45 + 0.55 * random.generateDouble()));
        const double base = line(x) + 6;
        const QPointF foot(x * size.width(), base);
        QPainterPath fir(foot - QPointF(0, height));
        constexpr int tiers = 7;
        for (int side : {1, -1}) {
            for (int step = 0; step < tiers; ++step) {
                const int tier = side > 0 ? step + 1 : tiers - step;
                const double down = height * tier / tiers;
                const double out = height * 0.20 * (0.25 + 0.75 * tier / tiers);
                const QPointF tip = foot + QPointF(side * out, -height + down);
                const QPointF notch = foot + QPointF(side * out * 0.52, -height + down - height * 0.012);
                fir.lineTo(side > 0 ? tip : notch);
                fir.lineTo(side > 0 ? notch : tip);
            }
        }
        fir.closeSubpath();
        firs.addPath(fir);
    }
    firs.setFillRule(Qt::WindingFill);
    painter.fillPath(firs, QColor(0x16, 0x16, 0x38));
}

} // namespace

void paintWallpaper(QPainter &painter, const QSizeF &size)
{
    painter.setPen(Qt::NoPen);
    paintSky(painter, size);
    paintStars(painter, size);
    paintClouds(painter, size);
    paintHills(painter, size);
    paintLake(painter, size);
    paintRipples(painter, size);
    paintShore(painter, size);
}

void Wallpaper::draw(QPainter &painter, double) const
{
    paintWallpaper(painter, size());
}

} // namespace brimshade::desktop
