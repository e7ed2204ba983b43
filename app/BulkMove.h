#pragma once
#include "MoveMessages.h"
#include "ScanScheduler.h"
#include "windows/flow/ItemChoices.h"

namespace brimshade::app {

using windows::ItemChoices;

// Whether the item can move and is not where it was chosen to be.
bool isPending(const menubar::MenuExtra &extra, const ItemChoices &choices);

// Brings one item after the other where it was chosen to be, each on fresh positions. Made on the main thread from
// what holds then; runs on the scan queue.
class BulkMove {
public:
    struct Job {
        ItemChoices choices;
        int passLimit = 0; // ends a bar that takes every move and does none
    };
    BulkMove(const platform::Platform &platform, std::shared_ptr<menubar::MenuBarAccess> access,
             std::weak_ptr<ScanScheduler> scans, std::weak_ptr<menubar::DividerControl> divider, Job job);

    MoveMessages run(); // blocks its thread, seconds for each move

private:
    bool pass(); // false when there is nothing more to do
    bool move(const menubar::MenuExtra &extra);
    std::optional<menubar::MenuExtra> nextPending();

    platform::Dispatch &m_dispatch;
    const std::shared_ptr<menubar::MenuBarAccess> m_access;
    const menubar::MenuBarMover m_mover;
    const std::weak_ptr<ScanScheduler> m_scans;
    const std::weak_ptr<menubar::DividerControl> m_divider;
    const Job m_job;
    MoveMessages m_messages;
};

} // namespace brimshade::app
