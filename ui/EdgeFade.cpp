#include "EdgeFade.h"

#include <QDataStream>
#include <QIODevice>
#include <algorithm>
#include <cmath>

namespace brimshade::ui {

EdgeFade::EdgeFade(QQuickItem *parent) : NinePatchItem(parent)
{
    connect(this, &EdgeFade::changed, this, &QQuickItem::update);
}

QByteArray EdgeFade::pictureKey() const
{
    if (m_depth <= 0)
        return {};
    QByteArray key("edge");
    QDataStream(&key, QIODevice::Append) << m_depth << m_radius << m_color;
    return key;
}

double EdgeFade::border() const
{
    return std::ceil(m_depth + m_radius);
}

QImage EdgeFade::draw(int side, double scale) const
{
    const double depth = m_depth * scale;
    const double corner = (m_depth + m_radius) * scale; // from the edge to the middle of the corner's circle
    // How far a place is beyond the straight part on its axis.
    const auto beyond = [&](int place) { return std::max(0.0, corner - std::min(place, side - 1 - place) - 0.5); };
    QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < side; ++y) {
        auto *pixels = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < side; ++x) {
            const double covered = std::clamp((std::hypot(beyond(x), beyond(y)) - (corner - depth)) / depth, 0.0, 1.0);
            const double alpha = covered * covered * (3 - 2 * covered) * m_color.alphaF() * 255;
            pixels[x] = qPremultiply(qRgba(m_color.red(), m_color.green(), m_color.blue(), int(std::lround(alpha))));
        }
    }
    return picture;
}

} // namespace brimshade::ui
