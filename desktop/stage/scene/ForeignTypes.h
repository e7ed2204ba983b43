#pragma once
// Gives the desktop's own types their names in QML: the desktop itself knows nothing about QML.
#include "desktop/core/Permission.h"

#include <qqml.h>

namespace brimshade::desktop {

struct PermissionForeign {
    Q_GADGET
    QML_FOREIGN(brimshade::desktop::Permission)
    QML_NAMED_ELEMENT(Permission)
    QML_UNCREATABLE("belongs to a desktop")
};

} // namespace brimshade::desktop
