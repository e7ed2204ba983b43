#pragma once
#include <QString>
#include <expected>

namespace brimshade::platform {

// SMAppServiceStatus
enum class LoginItemStatus { notRegistered = 0, enabled = 1, requiresApproval = 2, notFound = 3 };

// The login item of this application. Main thread, synchronous. An error is the system's own
// description, ready to show.
class LoginItems {
public:
    virtual ~LoginItems() = default;
    virtual LoginItemStatus status() const = 0;
    virtual std::expected<void, QString> registerMainApp() = 0;
    virtual std::expected<void, QString> unregisterMainApp() = 0;
};

} // namespace brimshade::platform
