#include "BulkMove.h"

#include "menubar/MenuBarAccess.h"
#include "platform/Dispatch.h"

#include <algorithm>

namespace brimshade::app {

namespace {

constexpr double kPause = 0.8; // after each move, for the divider to return to its place

}

bool isPending(const menubar::MenuExtra &extra, const ItemChoices &choices)
{
    const auto choice = choices.constFind(extra.id);
    return extra.canMove && choice != choices.constEnd() && *choice != extra.isHidden;
}

BulkMove::BulkMove(const platform::Platform &platform, std::shared_ptr<menubar::MenuBarAccess> access,
                   std::weak_ptr<ScanScheduler> scans, std::weak_ptr<menubar::DividerControl> divider, Job job)
    : m_dispatch(platform.dispatch), m_access(std::move(access)), m_mover(platform, m_access),
      m_scans(std::move(scans)), m_divider(std::move(divider)), m_job(std::move(job))
{
}

MoveMessages BulkMove::run()
{
    for (int passes = 0; passes < m_job.passLimit && pass(); ++passes)
        m_dispatch.sleep(kPause);
    return m_messages;
}

bool BulkMove::pass()
{
    const std::optional<menubar::MenuExtra> extra = nextPending();
    return extra && move(*extra);
}

bool BulkMove::move(const menubar::MenuExtra &extra)
{
    const auto result = m_mover.move(extra, m_job.choices.value(extra.id), m_divider);
    if (result)
        return true;
    m_messages.insert(extra.id, failureMessage(extra, result.error()));
    return result.error() != menubar::MenuBarMover::Failure::menuBarHidden; // the rest would fail in the same way
}

std::optional<menubar::MenuExtra> BulkMove::nextPending()
{
    std::optional<ScanBasis> basis; // absent once the program is going down
    m_dispatch.mainSync([&] {
        if (const auto scans = m_scans.lock())
            basis = scans->basis();
    });
    if (!basis)
        return {};
    const menubar::ExtraList extras = m_access->scan(basis->screen, basis->dividerFrame);
    const auto next = std::ranges::find_if(extras, [this](const menubar::MenuExtra &extra) {
        return isPending(extra, m_job.choices) && !m_messages.contains(extra.id);
    });
    return next == extras.end() ? std::nullopt : std::optional(*next);
}

} // namespace brimshade::app
