#pragma once
#include "MoveMessages.h"
#include "ScanScheduler.h"
#include "windows/flow/ItemChoices.h"

namespace brimshade::app {

using windows::ItemChoices;

// Whether the item can move and is not yet on the side chosen for it.
bool isPending(const menubar::MenuExtra &extra, const ItemChoices &choices);

// Moves the items one after another to the sides chosen for them, reading positions afresh for each. Made on the main
// thread from the state at that moment; runs on the scan queue.
class BulkMove {
public:
    struct Job {
        ItemChoices choices;
        int passLimit = 0; // gives up on a bar that accepts every move but carries out none
    };
    BulkMove(const platform::Platform &platform, std::shared_ptr<menubar::MenuBarAccess> access,
             std::weak_ptr<ScanScheduler> scans, std::weak_ptr<menubar::DividerControl> divider, Job job);

    MoveMessages run(); // blocks its thread for some seconds per move

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
