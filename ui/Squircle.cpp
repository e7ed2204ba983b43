#include "Squircle.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace brimshade::ui {

namespace {

constexpr int kSteps = 24; // lines a corner: far below a pixel apart at every size that is drawn
constexpr double kReach = 1.5; // of the radius: where a continuous corner begins

// Adds a quarter of |x/d|^n + |y/d|^n = 1 from the present position around `corner`; `in` and `out` are the unit
// directions along the side that ends and the side that begins.
void addCorner(QPainterPath &path, QPointF corner, QPointF in, QPointF out, double reach, double exponent)
{
    const QPointF centre = corner - in * reach + out * reach;
    for (int i = 1; i <= kSteps; ++i) {
        const double angle = std::numbers::pi / 2 * i / kSteps;
        const double along = std::pow(std::sin(angle), 2 / exponent);
        const double away = std::pow(std::max(0.0, std::cos(angle)), 2 / exponent);
        path.lineTo(centre + in * (reach * along) - out * (reach * away));
    }
}

} // namespace

QPainterPath roundedRectangle(const QRectF &rect, double radius, bool isContinuous)
{
    QPainterPath path;
    const double half = std::min(rect.width(), rect.height()) / 2;
    const double r = std::clamp(radius, 0.0, half);
    if (r <= 0 || !isContinuous) {
        path.addRoundedRect(rect, r, r);
        return path;
    }
    const double reach = std::min(kReach * r, half);
    const double depth = (1 - std::numbers::sqrt2 / 2) * r / reach; // of the corner's middle, as a share of the reach
    const double exponent = std::numbers::ln2 / -std::log(1 - depth);
    path.moveTo(rect.left() + reach, rect.top());
    path.lineTo(rect.right() - reach, rect.top());
    addCorner(path, rect.topRight(), {1, 0}, {0, 1}, reach, exponent);
    path.lineTo(rect.right(), rect.bottom() - reach);
    addCorner(path, rect.bottomRight(), {0, 1}, {-1, 0}, reach, exponent);
    path.lineTo(rect.left() + reach, rect.bottom());
    addCorner(path, rect.bottomLeft(), {-1, 0}, {0, -1}, reach, exponent);
    path.lineTo(rect.left(), rect.top() + reach);
    addCorner(path, rect.topLeft(), {0, -1}, {1, 0}, reach, exponent);
    path.closeSubpath();
    return path;
}

} // namespace brimshade::ui
