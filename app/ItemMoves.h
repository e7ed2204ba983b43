#pragma once
#include "BulkMove.h"
#include "platform/Platform.h"

namespace brimshade::app {

class PanelPresenter;
class SecondaryWindows;

// Hides and shows items by moving them across the divider, one at a time, and puts into words what went wrong. Main
// thread; the moves themselves run on the scan queue.
class ItemMoves : public std::enable_shared_from_this<ItemMoves> {
public:
    ItemMoves(const platform::Platform &platform, ScanScheduler::Parts parts, std::shared_ptr<ScanScheduler> scans,
              std::shared_ptr<PanelPresenter> panel, std::shared_ptr<SecondaryWindows> windows);
    ~ItemMoves();

    // Turns the divider on first. Ignored while a move runs. A failure becomes the model's message.
    void setHidden(const menubar::MenuExtra &extra, bool hidden);
    // For the end of the setup flow: remembers that it is done and moves every item to the side chosen for it.
    void finishOnboarding(const ItemChoices &choices);

private:
    // Tells whose movingID the model shows, from a move's request to its end. A later move replaces it, and then only
    // that move clears it.
    using Mark = int;
    Mark mark(const QString &movingID);
    void unmark(Mark mark);

    void queueMove(const menubar::MenuExtra &extra, bool hidden, Mark mark);
    void moveFinished(const menubar::MenuExtra &extra, Mark mark, const menubar::MenuBarMover::Result &result);
    void applyChoices(const ItemChoices &choices, Mark mark);
    void choicesApplied(Mark mark, const MoveMessages &messages);

    const platform::Platform m_platform;
    const ScanScheduler::Parts m_parts;
    const std::shared_ptr<ScanScheduler> m_scans;
    const std::shared_ptr<PanelPresenter> m_panel;
    const std::shared_ptr<SecondaryWindows> m_windows;
    Mark m_lastMark = 0;
};

} // namespace brimshade::app
