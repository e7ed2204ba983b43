#pragma once
#include "support/Descriptions.h"

namespace brimshade::features {

// A running application with one item, 30 points wide.
desktop::ApplicationDescription application(int pid, const QString &name, double width = 30);
// The system's agent: the clock from 1372 to 1504, the control centre left of it from 1332.
desktop::ApplicationDescription systemAgent();
// A plain button of the system's agent at a fixed place, at which its other items seem to begin.
desktop::ApplicationDescription agentWithButton(const QRectF &frame);

// The notched screen, the agent, Brimshade's item left of it, then Relay, Vault and Quill leftwards from 1304. The
// setup flow is done, the permission given.
desktop::DesktopDescription notchedDesktop(const QVariantMap &defaults = {});
// The same with divider mode on: all three are tucked away.
desktop::DesktopDescription dividedDesktop();

} // namespace brimshade::features
