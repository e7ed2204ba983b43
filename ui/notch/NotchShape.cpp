#include "NotchShape.h"

#include <algorithm>

namespace brimshade::ui {

double NotchShape::effectiveBottom(QSizeF frame) const
{
    const double r = std::min((frame.width() - 2 * top) / 2, std::min((frame.height() - top) * 0.9, bottom));
    return std::max(0.0, r);
}

QPainterPath NotchShape::path(const QRectF &frame) const
{
    const double left = frame.left() + top;
    const double right = frame.right() - top;
    const double r = effectiveBottom(frame.size());
    QPainterPath path;
    path.moveTo(frame.topLeft());
    path.quadTo({left, frame.top()}, {left, frame.top() + top});
    path.lineTo(left, frame.bottom() - r);
    path.quadTo({left, frame.bottom()}, {left + r, frame.bottom()});
    path.lineTo(right - r, frame.bottom());
    path.quadTo({right, frame.bottom()}, {right, frame.bottom() - r});
    path.lineTo(right, frame.top() + top);
    path.quadTo({right, frame.top()}, frame.topRight());
    path.closeSubpath();
    return path;
}

NotchShape NotchShape::between(const NotchShape &from, const NotchShape &to, double progress)
{
    return {std::max(0.0, from.top + (to.top - from.top) * progress),
            std::max(0.0, from.bottom + (to.bottom - from.bottom) * progress)};
}

} // namespace brimshade::ui
