#pragma once
#include "platform/Dispatch.h"
#include "platform/View.h"

namespace brimshade::controls {

// Fills the strip over the notch: invisible, and reports when the pointer has rested on it. Main thread.
class HoverView : public platform::NativeView, public std::enable_shared_from_this<HoverView> {
public:
    // onHover runs once per entry, 0.18 s after it, unless the pointer left before.
    HoverView(platform::Dispatch &dispatch, platform::Work onHover);

    std::vector<platform::TrackingArea> updateTrackingAreas(QSizeF size) override;
    void mouseEntered() override;
    void mouseExited() override;
    void draw(QPainter &painter, const QRectF &dirtyRect) override;

private:
    platform::Dispatch &m_dispatch;
    const platform::Work m_onHover;
    std::shared_ptr<platform::DispatchWorkItem> m_pending; // of the last entry
};

} // namespace brimshade::controls
