#include "HoverZone.h"

#include "HoverView.h"
#include "StripPanel.h"
#include "menubar/NotchGeometry.h"
#include "platform/Platform.h"

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
    auto view = std::make_shared<HoverView>(m_dispatch, [weak = weak_from_this()] {
        if (const auto self = weak.lock())
            self->m_onHover();
    });
    m_window = m_windows.createWindow(stripPanelAttributes(frame), std::move(view));
    m_window->orderFrontRegardless();
}

} // namespace brimshade::controls
