#pragma once
#include "platform/LoginItems.h"

#include <optional>

namespace brimshade::desktop {

// A login service that answers as a script tells it to. Main thread.
class ScriptedLoginItem : public platform::LoginItems {
public:
    // failure: the error of registering and unregistering; without one they succeed and change the status.
    void answer(platform::LoginItemStatus status, std::optional<QString> failure);
    const std::optional<QString> &failure() const { return m_failure; }

    platform::LoginItemStatus status() const override { return m_status; }
    std::expected<void, QString> registerMainApp() override;
    std::expected<void, QString> unregisterMainApp() override;

private:
    std::expected<void, QString> change(platform::LoginItemStatus status);

    platform::LoginItemStatus m_status = platform::LoginItemStatus::notRegistered;
    std::optional<QString> m_failure;
};

} // namespace brimshade::desktop
