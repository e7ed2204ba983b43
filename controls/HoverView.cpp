#include "HoverView.h"

#include "platform/Weakly.h"

namespace brimshade::controls {

namespace {

constexpr double kRestDelay = 0.18;
constexpr double kFillAlpha = 0.001; // a fully transparent window would let the pointer through

} // namespace

HoverView::HoverView(platform::Dispatch &dispatch, platform::Work onHover)
    : m_dispatch(dispatch), m_onHover(std::move(onHover))
{
}

std::vector<platform::TrackingArea> HoverView::updateTrackingAreas(QSizeF size)
{
    return {{{QPointF(), size}, platform::kTrackingMouseEnteredAndExited | platform::kTrackingActiveAlways}};
}

void HoverView::mouseEntered()
{
    m_pending = std::make_shared<platform::DispatchWorkItem>(
        platform::weakly(weak_from_this(), [](const HoverView &view) { view.m_onHover(); }));
    m_dispatch.mainAfter(kRestDelay, [pending = m_pending] { pending->perform(); });
}

void HoverView::mouseExited()
{
    if (m_pending)
        m_pending->cancel();
}

void HoverView::draw(QPainter &painter, const QRectF &dirtyRect)
{
    painter.fillRect(dirtyRect, QColor::fromRgbF(0, 0, 0, kFillAlpha));
}

} // namespace brimshade::controls
