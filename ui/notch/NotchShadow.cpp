#include "NotchShadow.h"
#include "NotchShape.h"
#include "model/PanelMetrics.h"

namespace brimshade::ui {

using Metrics = model::PanelMetrics;

NotchShadow::NotchShadow(QQuickItem *parent) : Shadow(parent)
{
    setProperty("radius", Metrics::openFlare + Metrics::openCorner); // what its corners bend
}

QPainterPath NotchShadow::outline(const QRectF &rect, double scale) const
{
    return NotchShape{Metrics::openFlare * scale, Metrics::openCorner * scale}.path(rect);
}

} // namespace brimshade::ui
