#include "BarTip.h"
#include "BarModel.h"
#include "desktop/core/BarEntry.h"
#include "platform/Dispatch.h"

namespace brimshade::desktop {

namespace {

constexpr double kRest = 0.7; // seconds

}

BarTip::BarTip(const MenuBar &bar, const InputRouter &input, platform::Dispatch &dispatch)
    : m_bar(bar), m_dispatch(dispatch)
{
    connect(&input, &InputRouter::pointerAt, this, &BarTip::pointerAt);
    connect(&input, &InputRouter::acted, this, &BarTip::hide);
    connect(&bar, &MenuBar::changed, this, [this] {
        if (m_isShown)
            take();
    });
}

void BarTip::pointerAt(QPointF point, Target target)
{
    auto item = target == Target::menuBar ? m_bar.drawnEntryAt(point) : nullptr;
    if (item == m_item)
        return;
    hide();
    m_item = std::move(item);
    if (m_item)
        m_dispatch.mainAfter(kRest, m_lifetime.guard([this, visit = m_visit] {
            if (visit == m_visit)
                rested();
        }));
}

void BarTip::rested()
{
    m_isShown = true;
    take();
}

void BarTip::take()
{
    const auto item = m_bar.itemOf(m_item);
    if (!item || !item->drawn) {
        hide();
        return;
    }
    m_text = item->toolTip.isEmpty() ? barItemName(*item) : item->toolTip;
    m_itemFrame = item->frame;
    Q_EMIT changed();
}

void BarTip::hide()
{
    ++m_visit;
    if (std::exchange(m_isShown, false))
        Q_EMIT changed();
}

} // namespace brimshade::desktop
