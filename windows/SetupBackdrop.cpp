#include "SetupBackdrop.h"
#include "ui/Squircle.h"

#include <QDataStream>
#include <QIODevice>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>

namespace brimshade::windows {

namespace {

using Light = std::array<float, 3>; // red, green, blue

struct Glow {
    Light color;
    float opacity; // in its middle
    QPointF center; // share of the view
    float endRadius; // points
};

constexpr float kStartRadius = 10; // points around the centre in the full colour
constexpr std::array kGlows{
    Glow{{1, 0.45F, 0.2F}, 0.35F, {0.5, 0.05}, 420},
    Glow{{0.55F, 0.35F, 1}, 0.22F, {0.9, 1}, 380},
};

void shine(Light &light, const Glow &glow, float distance)
{
    const float way = std::clamp((distance - kStartRadius) / (glow.endRadius - kStartRadius), 0.0F, 1.0F);
    const float opacity = glow.opacity * (1 - way);
    for (std::size_t i = 0; i < light.size(); ++i)
        light[i] += (glow.color[i] - light[i]) * opacity;
}

// Noise from 0 to 1 in which neighbours differ widely, so that the eye averages them.
float threshold(int x, int y)
{
    const float inner = 0.06711056F * float(x) + 0.00583715F * float(y);
    const float outer = 52.9829189F * (inner - std::floor(inner));
    return outer - std::floor(outer);
}

QRgb dithered(const Light &light, float noise)
{
    const auto byte = [noise](float value) { return std::min(255, int(value * 255 + noise)); };
    return qRgb(byte(light[0]), byte(light[1]), byte(light[2]));
}

void fadeIn(QImage &picture)
{
    QLinearGradient fade(0, 0, 0, picture.height());
    fade.setColorAt(0, Qt::transparent);
    fade.setColorAt(1, Qt::black);
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(picture.rect(), fade);
}

} // namespace

SetupBackdrop::SetupBackdrop(QQuickItem *parent) : DrawnItem(parent)
{
    connect(this, &SetupBackdrop::changed, this, &QQuickItem::update);
}

QByteArray SetupBackdrop::pictureKey() const
{
    QByteArray key("setup backdrop");
    QDataStream out(&key, QIODevice::Append);
    out << m_whole << m_origin << m_radius << m_fadesIn;
    return key;
}

QImage SetupBackdrop::light(double scale) const
{
    QImage picture((size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < picture.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            Light light{};
            for (const Glow &glow : kGlows) {
                const double dx = m_origin.x() + (x + 0.5) / scale - glow.center.x() * m_whole.width();
                const double dy = m_origin.y() + (y + 0.5) / scale - glow.center.y() * m_whole.height();
                shine(light, glow, float(std::sqrt(dx * dx + dy * dy)));
            }
            line[x] = dithered(light, threshold(x, y));
        }
    }
    return picture;
}

void SetupBackdrop::draw(QPainter &painter, double scale) const
{
    QImage picture = light(scale);
    if (m_fadesIn)
        fadeIn(picture);
    QBrush brush(picture);
    brush.setTransform(QTransform::fromScale(1 / scale, 1 / scale));
    painter.fillPath(ui::roundedRectangle(boundingRect(), m_radius, true), brush);
}

} // namespace brimshade::windows
