#pragma once
#include "menubar/MenuExtra.h"

#include <QRectF>
#include <memory>
#include <optional>

namespace brimshade::platform {
class Accessibility;
class Dispatch;
struct Platform;
class SerialQueue;
} // namespace brimshade::platform

namespace brimshade::menubar {
class MenuBarAccess;
}

namespace brimshade::model {
class NotchModel;
}

namespace brimshade::controls {
class Divider;
}

namespace brimshade::app {

class PanelPlacement;

// Runs menu bar scans off the main thread, one after the other, and publishes each result in the model.
class ScanScheduler : public std::enable_shared_from_this<ScanScheduler> {
public:
    // What scans and moves work on.
    struct Parts {
        std::shared_ptr<model::NotchModel> model;
        std::shared_ptr<menubar::MenuBarAccess> access;
        std::shared_ptr<platform::SerialQueue> queue;
        std::shared_ptr<PanelPlacement> placement;
        std::shared_ptr<controls::Divider> divider;
    };
    ScanScheduler(const platform::Platform &platform, Parts parts);
    ~ScanScheduler();

    // Main thread; returns at once. Without the permission nothing is scanned, and the model says so.
    void scan();
    // What tells hidden items from others; absent while divider mode is off. Main thread, display space.
    std::optional<QRectF> dividerFrame() const;

private:
    void publish(menubar::ExtraList extras);

    platform::Accessibility &m_accessibility;
    platform::Dispatch &m_dispatch;
    const Parts m_parts;
};

} // namespace brimshade::app
