#pragma once
#include "ApplicationSpec.h"
#include "desktop/services/MemoryDefaults.h"
#include "platform/LoginItems.h"
#include "platform/Platform.h"

#include <QObject>
#include <memory>

namespace brimshade::desktop {

class HotkeyRegistry;
class InputRouter;
class Inspection;
class LogWriter;
class MenuBar;
class MenuHost;
class Permission;
class ScriptedLoginItem;
class WindowStack;

// A whole desktop: its display, its running applications and every service of platform/ except Symbols, which comes
// from the scene's side. Any number may exist in one process; each is destroyed after everything that uses its
// platform() and before its Dispatch. Main thread.
class Desktop : public QObject {
    Q_OBJECT
public:
    struct Services {
        platform::Dispatch &dispatch;
        platform::Symbols &symbols;
        std::unique_ptr<MemoryDefaults> defaults; // null: empty, in memory
        std::unique_ptr<platform::LoginItems> loginItems; // null: what the description and scripts say
        bool needsPermission = true; // for Accessibility
        platform::MenuBarPreferences *menuBarPreferences = nullptr; // of a bar that can be chosen; outlives the desktop
        bool printsLog = false; // to standard error, as it is written
    };
    // When this returns, the description's applications run and its bar has settled. The description's defaults are
    // stored under the keys that the store lacks.
    Desktop(Services services, const DesktopDescription &description);
    ~Desktop() override;

    platform::Platform platform();

    HotkeyRegistry &hotkeys();
    InputRouter &input();
    Inspection &inspection();
    LogWriter &log();
    MenuBar &menuBar();
    MenuHost &menus();
    Permission &permission();
    WindowStack &windows();
    ScriptedLoginItem *scriptedLoginItem(); // null when Services brought login items
    MemoryDefaults &defaults();

    int ownPid() const; // this program's, as its running applications list it

    // A pid belongs to one application at a time: launch() is false if it is taken, quit() and change() if it is
    // unknown. A change keeps the elements and places of extras that are there before and after: those with the same
    // identifier or, lacking one, the same role, title and description. An extra with an origin keeps its place by
    // that.
    bool launch(const ApplicationSpec &application);
    bool quit(int pid);
    bool change(int pid, const ApplicationSpec &application);

    void setScreens(const std::vector<ScreenDescription> &screens);
    void setTrusted(bool trusted);
    void setMenuBarShowing(bool showing);
    void setMovesAccepted(bool accepted);

    // Shows a person an application's message, and records it for Inspection: "Relay", "Open Relay".
    void notify(const QString &application, const QString &what);

Q_SIGNALS:
    void changed(); // screens, permission, prompt, opened pages or applications
    void terminated(); // the program asked to end
    void notified(const QString &application, const QString &what);
    // Somebody pressed a button, a key or an item: what was asked for earlier and has not come yet is no longer wanted.
    void acted();

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

} // namespace brimshade::desktop
