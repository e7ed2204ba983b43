#include "ItemMoves.h"

#include "PanelPresenter.h"
#include "ScanQueue.h"
#include "SecondaryWindows.h"
#include "controls/Divider.h"
#include "menubar/MenuBarAccess.h"
#include "model/NotchModel.h"
#include "platform/Dispatch.h"
#include "platform/UserDefaults.h"
#include "platform/Weakly.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace brimshade::app {

using platform::weakly;

namespace {

constexpr double kMoveDelay = 0.35; // the panel is off screen by then
constexpr double kBulkDelay = 1.2;

} // namespace

ItemMoves::ItemMoves(const platform::Platform &platform, ScanScheduler::Parts parts,
                     std::shared_ptr<ScanScheduler> scans, std::shared_ptr<PanelPresenter> panel,
                     std::shared_ptr<SecondaryWindows> windows)
    : m_platform(platform), m_parts(std::move(parts)), m_scans(std::move(scans)), m_panel(std::move(panel)),
      m_windows(std::move(windows))
{
}

ItemMoves::~ItemMoves() = default;

ItemMoves::Mark ItemMoves::mark(const QString &movingID)
{
    m_parts.model->setMovingID(movingID);
    return ++m_lastMark;
}

void ItemMoves::unmark(Mark mark)
{
    if (mark == m_lastMark)
        m_parts.model->setMovingID({});
}

void ItemMoves::setHidden(const menubar::MenuExtra &extra, bool hidden)
{
    if (!m_parts.model->movingID().isEmpty())
        return;
    // Items are hidden and shown by moving them across the widened icon. Re-applies the settings even when it is on.
    m_parts.model->setDividerEnabled(true);
    m_panel->close();
    const Mark mark = this->mark(extra.id);
    m_parts.model->setMessage({});
    m_platform.dispatch.mainAfter(kMoveDelay, weakly(weak_from_this(), &ItemMoves::queueMove, extra, hidden, mark));
}

void ItemMoves::queueMove(const menubar::MenuExtra &extra, bool hidden, Mark mark)
{
    m_parts.queue->move([finished = weakly(weak_from_this(), &ItemMoves::moveFinished, extra, mark),
                         &dispatch = m_platform.dispatch, mover = menubar::MenuBarMover(m_platform, m_parts.access),
                         divider = std::weak_ptr(m_parts.divider), extra, hidden] {
        dispatch.mainAsync([finished, result = mover.move(extra, hidden, divider)] { finished(result); });
    });
}

void ItemMoves::moveFinished(const menubar::MenuExtra &extra, Mark mark, const menubar::MenuBarMover::Result &result)
{
    unmark(mark);
    if (!result) {
        m_parts.model->setMessage(failureMessage(extra, result.error()));
        if (!m_windows->isSettingsVisible())
            m_windows->openSettings();
    }
    m_scans->scan();
}

void ItemMoves::finishOnboarding(const ItemChoices &choices)
{
    m_platform.userDefaults.setBool(true, u"onboardingDone"_s);
    m_windows->closeOnboarding();
    model::NotchModel &model = *m_parts.model;
    const auto pending = [&choices](const menubar::MenuExtra &extra) { return isPending(extra, choices); };
    if (std::ranges::none_of(model.extras(), pending)) {
        m_panel->open(false);
        return;
    }
    const auto toHide = [&](const menubar::MenuExtra &extra) { return pending(extra) && !extra.isHidden; };
    if (std::ranges::any_of(model.extras(), toHide))
        model.setDividerEnabled(true);
    m_platform.dispatch.mainAfter(kBulkDelay,
                                  weakly(weak_from_this(), &ItemMoves::applyChoices, choices, mark(u"onboarding"_s)));
}

void ItemMoves::applyChoices(const ItemChoices &choices, Mark mark)
{
    m_parts.queue->move([applied = weakly(weak_from_this(), &ItemMoves::choicesApplied, mark),
                         &dispatch = m_platform.dispatch,
                         bulk = std::make_shared<BulkMove>(m_platform, m_parts.access, m_scans, m_parts.divider,
                                                           BulkMove::Job{choices, 2 * m_parts.model->itemCount()})] {
        dispatch.mainAsync([applied, messages = bulk->run()] { applied(messages); });
    });
}

void ItemMoves::choicesApplied(Mark mark, const MoveMessages &messages)
{
    unmark(mark);
    if (messages.isEmpty()) {
        m_panel->open(false);
        return;
    }
    m_parts.model->setMessage(failureSummary(messages));
    m_windows->openSettings();
}

} // namespace brimshade::app
