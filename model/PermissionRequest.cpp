#include "PermissionRequest.h"
#include "platform/Accessibility.h"
#include "platform/Workspace.h"

namespace brimshade::model {

using namespace Qt::StringLiterals;

PermissionRequest::PermissionRequest(platform::Accessibility &accessibility, platform::Workspace &workspace,
                                     QObject *parent)
    : QObject(parent), m_accessibility(accessibility), m_workspace(workspace)
{
}

void PermissionRequest::openAccessibilitySettings()
{
    m_accessibility.isProcessTrustedWithOptions(true);
    m_workspace.openURL(u"x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility"_s);
}

} // namespace brimshade::model
