#include "HoverZone.h"

#include "HoverView.h"
#include "StripPanel.h"
#include "menubar/NotchGeometry.h"
#include "platform/Platform.h"
#include "platform/Weakly.h"

namespace brimshade::controls {

HoverZone::HoverZone(const platform::Platform &platform)
    : m_dispatch(platform.dispatch), m_windows(platform.windows) { }

HoverZone::~HoverZone() = default;

void HoverZone::update(bool enabled, const std::optional<platform::Screen> &screen)
{
    if (m_window)
        m_window->orderOut();
    m_window.reset();
    const auto notch = enabled && screen ? menubar::notchExtent(*screen) : std::nullopt;
    if (!notch)
        return;
    build({platform::minX(screen->frame) + notch->lower, platform::maxY(screen->frame) - screen->safeAreaTop,
           notch->upper - notch->lower, screen->safeAreaTop});
}

void HoverZone::build(const QRectF &frame)
{
    auto view = std::make_shared<HoverView>(
        m_dispatch, platform::weakly(weak_from_this(), [](const HoverZone &zone) { zone.m_onHover(); }));
    m_window = m_windows.createWindow(stripPanelAttributes(frame), std::move(view));
    m_window->orderFrontRegardless();
}

} // namespace brimshade::controls
