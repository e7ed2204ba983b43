#pragma once
#include "OffscreenScene.h"
#include "model/NotchModel.h"
#include "model/PermissionRequest.h"
#include "model/TileActions.h"
#include "platform/Accessibility.h"
#include "platform/LoginItems.h"
#include "platform/Menu.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"

#include <QStringList>
#include <memory>

namespace brimshade::panel {

// Remembers what the panel asked of the system; gives it nothing.
struct FakeSystem {
    class Defaults;
    class LoginItem;
    class Menus;
    class Trust;
    class Pages;

    FakeSystem();
    ~FakeSystem();

    QStringList done; // "menu Open,-Hide from Menu Bar", "prompt", "open x-apple…"; "-" marks a disabled entry
    std::unique_ptr<platform::UserDefaults> defaults;
    std::unique_ptr<platform::LoginItems> loginItems;
    std::unique_ptr<platform::Menus> menus;
    std::unique_ptr<platform::Accessibility> accessibility;
    std::unique_ptr<platform::Workspace> workspace;
};

// An item of an application with a drawn icon.
model::MenuExtra makeExtra(const QString &name, bool isHidden);
// The first `hidden` behind the notch; the agent's symbols among the visible ones.
model::ExtraList makeExtras(int hidden, int visible);

// A model on the fake system; what its callbacks were told is in system.done: "select Relay", "dismiss", "settings".
struct ModelFixture {
    ModelFixture();

    FakeSystem system;
    model::NotchModel model;
};

// The panel as the window shows it, on a closed model that a scan has filled.
class PanelScene : public ModelFixture {
public:
    explicit PanelScene(int hidden = 3, int visible = 2, double scale = 1);

    void open(); // and lets every motion end
    void finishMotion() { scene.advance(3000); }
    QQuickItem *tile(const QString &name) const; // null when it has no delegate
    QStringList tileNames() const; // in reading order
    QRectF frame(const QString &objectName) const;
    QColor pixel(QPointF at);
    void setWallpaper(bool shown); // else plain grey

    model::TileActions actions{model, *system.menus};
    model::PermissionRequest permission{*system.accessibility, *system.workspace};
    ui::OffscreenScene scene;

private:
    double m_scale;
};

} // namespace brimshade::panel
