#include "ScanScheduler.h"

#include "PanelPlacement.h"
#include "controls/Divider.h"
#include "menubar/MenuBarAccess.h"
#include "model/NotchModel.h"
#include "platform/Dispatch.h"
#include "platform/Platform.h"
#include "platform/Weakly.h"

namespace brimshade::app {

ScanScheduler::ScanScheduler(const platform::Platform &platform, Parts parts)
    : m_accessibility(platform.accessibility), m_dispatch(platform.dispatch), m_parts(std::move(parts))
{
}

ScanScheduler::~ScanScheduler() = default;

void ScanScheduler::scan()
{
    if (!m_accessibility.isProcessTrusted()) {
        m_parts.model->setTrusted(false);
        return;
    }
    if (m_parts.model->movingID().isEmpty())
        m_parts.divider->expand();
    m_parts.queue->async([publish = platform::weakly(weak_from_this(), &ScanScheduler::publish),
                          access = m_parts.access, &dispatch = m_dispatch, screen = m_parts.placement->screen(),
                          divider = dividerFrame()] {
        dispatch.mainAsync([publish, extras = access->scan(screen, divider)]() mutable { publish(std::move(extras)); });
    });
}

void ScanScheduler::publish(menubar::ExtraList extras)
{
    m_parts.model->setExtras(std::move(extras));
    m_parts.model->setScanned(true);
}

std::optional<QRectF> ScanScheduler::dividerFrame() const
{
    return m_parts.model->dividerEnabled() ? std::optional(m_parts.divider->axFrame()) : std::nullopt;
}

} // namespace brimshade::app
