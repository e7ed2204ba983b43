#pragma once
#include "menubar/MenuBarMover.h"
#include "platform/Image.h"

#include <memory>
#include <optional>

namespace brimshade::platform {
class DispatchWorkItem;
class StatusItem;
class Window;
} // namespace brimshade::platform

namespace brimshade::menubar {
class MenuBarAccess;
}

namespace brimshade::controls {

// The program's own status item, widened up to the notch in divider mode so that whatever is left of it is tucked
// away. Measures, expands, and shortens itself while it has grown too far. Main thread only; lengths in points.
class Divider : public menubar::DividerControl, public std::enable_shared_from_this<Divider> {
public:
    // Collapses the item and follows screen changes and applications that come and go from now on. The services
    // outlive the divider.
    static std::shared_ptr<Divider> create(const platform::Platform &platform,
                                           std::shared_ptr<menubar::MenuBarAccess> access,
                                           std::shared_ptr<platform::StatusItem> item, const platform::Image &symbol);
    ~Divider() override;

    bool isExpanded() const { return m_isExpanded; } // expand() was called last, even if it still has to wait
    bool isEnabled() const { return m_isEnabled; } // divider mode
    void setEnabled(bool enabled); // and measures anew
    // x of the right edge of the item while it has its resting length, screen space; absent until measured.
    std::optional<double> anchor() const { return m_anchor; }
    double slack() const { return m_slack; } // kept free beside the notch after failed clearance checks

    void reanchor(); // collapses, measures 0.3 s later, then expands; during a move it waits for release()
    void expand(); // as far as anchor, slack and notch allow; a pending measurement calls this itself
    void collapse() override; // for a move: nothing widens it until release()
    void release() override;
    void resize(double length);
    QRectF axFrame() const override;
    bool isWindowVisible() const override;

private:
    using Step = std::shared_ptr<platform::DispatchWorkItem>; // a scheduled one; null for none

    struct Room {
        double length;
        bool reachesNotch; // there is room beside the notch: worth checking that the bar granted it
    };

    Divider(const platform::Platform &platform, std::shared_ptr<menubar::MenuBarAccess> access,
            std::shared_ptr<platform::StatusItem> item, const platform::Image &symbol);

    void observe();
    void applicationsChanged();
    void measure();
    std::optional<Room> room() const; // absent when nothing can be measured
    void checkClearance();
    void giveWay();
    bool mayWiden() const { return !m_isMoving && !m_measurement; }
    void shrink();
    void later(Step &pending, double seconds, void (Divider::*step)()); // instead of what was pending
    platform::Window *window() const;

    const platform::Platform m_platform;
    const std::shared_ptr<menubar::MenuBarAccess> m_access;
    const std::shared_ptr<platform::StatusItem> m_item;
    const platform::Image m_symbol;
    bool m_isExpanded = false;
    bool m_isEnabled = false;
    std::optional<double> m_anchor;
    double m_slack = 0;
    bool m_isMoving = false; // from collapse() to release()
    Step m_measurement, m_clearanceCheck, m_applicationChange;
};

} // namespace brimshade::controls
