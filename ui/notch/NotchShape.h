#pragma once
#include <QPainterPath>
#include <QRectF>

namespace brimshade::ui {

// The outline of the panel: a tab that hangs from the top edge of the screen. Its upper corners flare outward to meet
// that edge; its body is as wide as the frame less a flare on either side. Points, y down.
struct NotchShape {
    double top = 0; // radius of the flares
    double bottom = 0; // radius of the lower corners, where the frame is large enough for it

    bool operator==(const NotchShape &) const = default;

    double effectiveBottom(QSizeF frame) const;
    QPainterPath path(const QRectF &frame) const;

    // Both radii move together; progress may overshoot 0 and 1 as springs do, radii stay at or above 0.
    static NotchShape between(const NotchShape &from, const NotchShape &to, double progress);
};

} // namespace brimshade::ui
