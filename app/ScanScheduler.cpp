#include "ScanScheduler.h"

#include "PanelPlacement.h"
#include "ScanQueue.h"
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
    m_parts.model->setTrusted(m_accessibility.isProcessTrusted());
    if (!m_parts.model->trusted())
        return;
    if (m_parts.model->movingID().isEmpty())
        m_parts.divider->expand();
    m_parts.queue->scan([publish = platform::weakly(weak_from_this(), &ScanScheduler::publish), access = m_parts.access,
                         &dispatch = m_dispatch, basis = basis()] {
        dispatch.mainAsync([publish, extras = access->scan(basis.screen, basis.dividerFrame)]() mutable {
            publish(std::move(extras));
        });
    });
}

void ScanScheduler::scanFor(Found found)
{
    m_waiting.push_back(std::move(found));
    scan();
    if (!m_parts.model->trusted())
        handOver({});
}

void ScanScheduler::publish(menubar::ExtraList extras)
{
    m_parts.model->setExtras(std::move(extras));
    m_parts.model->setScanned(true);
    handOver(m_parts.model->extras());
}

void ScanScheduler::handOver(const menubar::ExtraList &extras)
{
    for (const Found &found : std::exchange(m_waiting, {}))
        found(extras);
}

ScanBasis ScanScheduler::basis() const
{
    return {m_parts.placement->currentScreen(),
            m_parts.model->dividerEnabled() ? std::optional(m_parts.divider->axFrame()) : std::nullopt};
}

} // namespace brimshade::app
