#pragma once
#include "menubar/MenuExtra.h"
#include "platform/Screens.h"

#include <QRectF>
#include <functional>
#include <memory>
#include <optional>

namespace brimshade::platform {
class Accessibility;
class Dispatch;
struct Platform;
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
class ScanQueue;

// What a scan judges the items by, taken at one moment.
struct ScanBasis {
    platform::Screen screen;
    std::optional<QRectF> dividerFrame; // display space; absent while divider mode is off
};

// Runs menu bar scans off the main thread, one after the other, and publishes each result in the model.
class ScanScheduler : public std::enable_shared_from_this<ScanScheduler> {
public:
    // What scans and moves work on.
    struct Parts {
        std::shared_ptr<model::NotchModel> model;
        std::shared_ptr<menubar::MenuBarAccess> access;
        std::shared_ptr<ScanQueue> queue;
        std::shared_ptr<PanelPlacement> placement;
        std::shared_ptr<controls::Divider> divider;
    };
    ScanScheduler(const platform::Platform &platform, Parts parts);
    ~ScanScheduler();

    // Main thread; returns at once. Tells the model whether the permission has been granted; without it nothing is
    // scanned.
    void scan();
    // The same, and passes on what this scan, or one already under way, finds: no items without the permission.
    using Found = std::function<void(const menubar::ExtraList &)>;
    void scanFor(Found found);
    ScanBasis basis() const; // now; main thread

private:
    void publish(menubar::ExtraList extras);
    void handOver(const menubar::ExtraList &extras);

    platform::Accessibility &m_accessibility;
    platform::Dispatch &m_dispatch;
    const Parts m_parts;
    std::vector<Found> m_waiting; // called with the next list that is published
};

} // namespace brimshade::app
