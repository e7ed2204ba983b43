#pragma once
#include "Lifetime.h"
#include "SharedState.h"

namespace brimshade::desktop {

class Permission;

// Other applications' items, read and pressed. Any thread; on the main thread no call waits, so that an
// application that hangs or is slow answers there at once.
class AccessibilityService : public platform::Accessibility {
public:
    // Called on the main thread, after the action has been answered.
    struct Handlers {
        std::function<void(const ElementPointer &item)> pressed, pressedInVain; // the latter: the item is gone
    };
    AccessibilityService(platform::Dispatch &dispatch, SharedState &state, Permission &permission, Handlers handlers);

    platform::AXUIElement createApplication(int processIdentifier) override;
    platform::AXError setMessagingTimeout(const platform::AXUIElement &element, double seconds) override;
    std::expected<platform::AXAttributeValue, platform::AXError>
    copyAttributeValue(const platform::AXUIElement &element, const QString &attribute) override;
    platform::AXError performAction(const platform::AXUIElement &element, const QString &action) override;

    bool needsPermission() const override;
    bool isProcessTrusted() override;
    bool isProcessTrustedWithOptions(bool prompt) override;

private:
    void wait(double seconds) const;

    platform::Dispatch &m_dispatch;
    SharedState &m_state;
    Permission &m_permission;
    const Handlers m_handlers;
    Lifetime m_lifetime;
};

} // namespace brimshade::desktop
