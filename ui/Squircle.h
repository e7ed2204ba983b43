#pragma once
#include <QPainterPath>
#include <QRectF>

namespace brimshade::ui {

// A rounded rectangle. Continuous corners have no jump of curvature where they meet the sides: they begin half a radius
// earlier and are as deep as the circle of that radius. The radius is limited to half the shorter side, where the
// corner is a circle.
QPainterPath roundedRectangle(const QRectF &rect, double radius, bool isContinuous);

} // namespace brimshade::ui
