#pragma once
#include "OffscreenScene.h"
#include "desktop/time/VirtualDispatch.h"
#include "model/NotchModel.h"
#include "model/PermissionRequest.h"
#include "model/ShortcutRecorder.h"
#include "model/TileActions.h"
#include "support/FakeSystem.h"

namespace brimshade::panel {

// An item of an application with an icon.
model::MenuExtra makeExtra(const QString &name, bool isHidden);
// The first `hidden` of them are behind the notch; the visible ones include the agent's symbols.
model::ExtraList makeExtras(int hidden, int visible);

// A model; the journal also has the calls of its callbacks: "select Relay", "dismiss", "settings".
struct ModelFixture : FakeSystem {
    ModelFixture();

    model::NotchModel model;
};

// The panel as the window shows it, on a closed model that a scan has filled.
class PanelScene : public ModelFixture {
public:
    explicit PanelScene(int hidden = 3, int visible = 2, double scale = 1, QSize window = {1000, 720});

    void open(); // and lets all motion end
    void finishMotion() { scene.advance(3000); }
    QList<QQuickItem *> tiles() const; // without those that are leaving
    QQuickItem *tile(const QString &name) const; // null if it has no delegate
    QStringList tileNames() const; // in reading order
    QRectF frame(const QString &objectName) const;

    model::TileActions actions{model, menus, &itemServices};
    model::PermissionRequest permission{accessibility, workspace};
    desktop::VirtualDispatch dispatch;
    model::ShortcutRecorder recorder{model, hotkeys, dispatch};
    ui::OffscreenScene scene;
};

} // namespace brimshade::panel
