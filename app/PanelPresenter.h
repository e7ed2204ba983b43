#pragma once
#include "EventMonitorSet.h"
#include "KeyHandler.h"
#include "ScanScheduler.h"
#include "menubar/MenuExtra.h"
#include "platform/Platform.h"

#include <memory>

namespace brimshade::platform {
class DispatchWorkItem;
class Log;
class StatusItem;
class Timer;
class Window;
} // namespace brimshade::platform

namespace brimshade::model {
class PermissionRequest;
class ShortcutRecorder;
class TileActions;
} // namespace brimshade::model

namespace brimshade::app {

// Opens and closes the panel, and watches pointer, clicks and keys while it is shown. Main thread.
class PanelPresenter : public std::enable_shared_from_this<PanelPresenter> {
public:
    PanelPresenter(const platform::Platform &platform, const ScanScheduler::Parts &parts,
                   std::shared_ptr<ScanScheduler> scans, std::shared_ptr<platform::StatusItem> statusItem);
    ~PanelPresenter();

    model::ShortcutRecorder &recorder() { return *m_recorder; }

    bool shown() const { return m_shown; }
    void prepare(); // creates the panel ahead of its first opening, which then takes no longer than the others
    // Refused while an item is being moved. When opened by hover the panel does not take the keyboard.
    void open(bool byHover);
    void present(); // opens it, or gives the open panel the keyboard
    void close(); // the panel goes off screen 0.35 s later, unless reopened
    void toggle();
    void select(const menubar::MenuExtra &extra); // closes, then presses the item
    void activate(const menubar::MenuExtra &extra); // closes, then activates the item
    void record(const menubar::MenuExtra &extra); // its shortcut, in the panel, until it has one or the panel closes
    void itemsChanged(); // those whose changes a person expects to see at once
    void hovered(); // the pointer has rested on the notch

private:
    void prepareModel();
    void placePanel();
    void logOpening(bool byHover) const;
    void show(bool byHover);
    void orderOut();
    void installMonitors();
    void handleOutsideClick(const platform::Event &event);
    std::optional<platform::Event> handleKey(const platform::Event &event);
    void startPointerWatch();
    void stopPointerWatch();
    void watchPointer();
    bool isPointerInside() const;
    QPointF toScreen(QPointF inPanel) const;
    platform::Window &panel();

    const platform::Platform m_platform;
    const std::shared_ptr<model::NotchModel> m_model;
    const std::shared_ptr<menubar::MenuBarAccess> m_access;
    const std::shared_ptr<PanelPlacement> m_placement;
    const std::shared_ptr<ScanScheduler> m_scans;
    const std::shared_ptr<platform::StatusItem> m_statusItem;
    const std::unique_ptr<model::TileActions> m_tileActions;
    const std::unique_ptr<model::PermissionRequest> m_permission;
    const std::unique_ptr<model::ShortcutRecorder> m_recorder;
    const KeyHandler m_keys;
    std::unique_ptr<platform::Window> m_panel; // from prepare() or the first opening on
    std::shared_ptr<platform::DispatchWorkItem> m_orderOut; // of the last closing; an opening cancels it
    EventMonitorSet m_monitors;
    std::unique_ptr<platform::Timer> m_pointerWatch; // only while a panel opened by hover is shown
    std::optional<double> m_awaySince; // Dispatch seconds; absent while the pointer is inside
    bool m_shown = false;
    bool m_isScanDue = false;
};

} // namespace brimshade::app
