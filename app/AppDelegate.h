#pragma once
#include "menubar/MenuExtra.h"
#include "model/KeyCombination.h"
#include "platform/Platform.h"

#include <expected>
#include <functional>
#include <memory>

namespace brimshade::platform {
class StatusItem;
}

namespace brimshade::menubar {
class MenuBarAccess;
}

namespace brimshade::model {
class NotchModel;
}

namespace brimshade::controls {
class Divider;
class Hotkeys;
class HoverZone;
} // namespace brimshade::controls

namespace brimshade::app {

class ItemHotkeys;
class ItemMoves;
class PanelPlacement;
class PanelPresenter;
class ScanQueue;
class ScanScheduler;
class SecondaryWindows;
class StatusMenu;

// The coordinator: owns the model and every long-lived object, wires them at launch and turns what the views and the
// system report into calls on them. Main thread only. Made by std::make_shared; every closure it hands out holds it, or
// the part of it that the closure is about, weakly. Two hold it strongly, by design, until the next turn has run them:
// the second measurement at launch, and the one that tells the views of an opening.
class AppDelegate : public std::enable_shared_from_this<AppDelegate> {
public:
    // The services outlive the delegate. At least one screen exists.
    explicit AppDelegate(const platform::Platform &platform);
    ~AppDelegate();

    // To be called once, before anything else; the first scan comes with the first opening of the panel.
    void applicationDidFinishLaunching();

    void applySettings(); // brings the divider, the hotkeys and the hover zone in line with the model

    // What other programs may ask for once this has launched.
    void openPanel(); // and gives it the keyboard
    void togglePanel();
    void openSettings();
    void listItems(std::function<void(const menubar::ExtraList &)> then); // answers later, with the items of that time
    // Opens the menu of the one item of that name. The error is for whoever asked.
    void openItem(const QString &name, const std::function<void(const std::expected<void, QString> &)> &then);

    model::NotchModel &model() { return *m_model; }
    bool shown() const; // from when the panel is ordered in until it begins to close
    const controls::Divider *divider() const { return m_divider.get(); } // null before the launch

private:
    void createStatusItem();
    void createDivider();
    void createParts();
    void configureButton();
    void installCallbacks();
    void installShortcutCallbacks();
    void applyShortcut();
    void screensChanged();
    void welcome(); // the setup flow on a first run, else the permission prompt where it is needed

    const platform::Platform m_platform;
    std::shared_ptr<model::NotchModel> m_model;
    std::shared_ptr<menubar::MenuBarAccess> m_access;
    std::shared_ptr<ScanQueue> m_scanQueue;
    std::shared_ptr<PanelPlacement> m_placement;
    std::shared_ptr<controls::HoverZone> m_hoverZone;
    const std::shared_ptr<controls::Hotkeys> m_hotkeys;
    std::optional<model::KeyCombination> m_refused; // the panel's shortcut that was refused, once the person was told
    std::shared_ptr<platform::StatusItem> m_statusItem; // this and all below: set at launch
    std::shared_ptr<controls::Divider> m_divider;
    std::shared_ptr<ScanScheduler> m_scans;
    std::shared_ptr<PanelPresenter> m_panel;
    std::shared_ptr<SecondaryWindows> m_windows;
    std::shared_ptr<ItemHotkeys> m_itemHotkeys;
    std::shared_ptr<ItemMoves> m_moves;
    std::shared_ptr<StatusMenu> m_statusMenu;
};

} // namespace brimshade::app
