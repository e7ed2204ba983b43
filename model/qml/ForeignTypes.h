#pragma once
// The model's types under their own names in QML: the model itself knows nothing of QML.
#include "model/NotchModel.h"
#include "model/PanelMetrics.h"
#include "model/PermissionRequest.h"
#include "model/ShortcutRecorder.h"
#include "model/TileActions.h"

#include <qqml.h>

namespace brimshade::model {

struct NotchModelForeign {
    Q_GADGET
    QML_FOREIGN(brimshade::model::NotchModel)
    QML_NAMED_ELEMENT(NotchModel)
    QML_UNCREATABLE("The program has one and hands it to its views.")
};

struct TileActionsForeign {
    Q_GADGET
    QML_FOREIGN(brimshade::model::TileActions)
    QML_NAMED_ELEMENT(TileActions)
    QML_UNCREATABLE("The program has one and hands it to its views.")
};

struct PermissionRequestForeign {
    Q_GADGET
    QML_FOREIGN(brimshade::model::PermissionRequest)
    QML_NAMED_ELEMENT(PermissionRequest)
    QML_UNCREATABLE("The program has one and hands it to its views.")
};

struct ShortcutRecorderForeign {
    Q_GADGET
    QML_FOREIGN(brimshade::model::ShortcutRecorder)
    QML_NAMED_ELEMENT(ShortcutRecorder)
    QML_UNCREATABLE("The program has one and hands it to its views.")
};

struct PanelMetricsForeign {
    Q_GADGET
    QML_FOREIGN(brimshade::model::PanelMetrics)
    QML_NAMED_ELEMENT(PanelMetrics)
    QML_SINGLETON
};

} // namespace brimshade::model
