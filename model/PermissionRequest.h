#pragma once
#include <QObject>

namespace brimshade::platform {
class Accessibility;
class Workspace;
} // namespace brimshade::platform

namespace brimshade::model {

// Asks for the Accessibility permission. Main thread.
class PermissionRequest : public QObject {
    Q_OBJECT
public:
    // Both outlive this object.
    PermissionRequest(platform::Accessibility &accessibility, platform::Workspace &workspace,
                      QObject *parent = nullptr);

    // The system's prompt, then its settings page. Whether the user granted it is not reported here.
    Q_INVOKABLE void openAccessibilitySettings();

private:
    platform::Accessibility &m_accessibility;
    platform::Workspace &m_workspace;
};

} // namespace brimshade::model
