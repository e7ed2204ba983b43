#pragma once
#include "ApplicationSpec.h"
#include "platform/Platform.h"

#include <QObject>
#include <memory>

namespace brimshade::desktop {

class InputRouter;
class MenuBar;
class MenuHost;
class WindowStack;

// A whole desktop: its display, its running applications and every service of platform/ but Symbols, which the
// scene's side gives. Any number may exist in one process; each is destroyed after whoever uses its platform().
class Desktop : public QObject
{
    Q_OBJECT
public:
    struct Services {
        platform::Dispatch &dispatch;
        platform::Symbols &symbols;
        std::unique_ptr<platform::UserDefaults> defaults;
        std::unique_ptr<platform::LoginItems> loginItems; // null: what the description and scripts say
    };
    Desktop(Services services, const DesktopDescription &description);
    ~Desktop() override;

    platform::Platform platform();

    InputRouter &input();
    MenuBar &menuBar();
    MenuHost &menus();
    WindowStack &windows();

    // Main thread. A pid is used once at a time; false when it is taken, or unknown to quit and change.
    bool launch(const ApplicationSpec &application);
    bool quit(int pid);
    bool change(int pid, const ApplicationSpec &application);

    void setScreens(const std::vector<ScreenDescription> &screens);
    void setTrusted(bool trusted);
    void setMenuBarShowing(bool showing);
    void setMovesAccepted(bool accepted);

Q_SIGNALS:
    void changed(); // screens, permission, prompt, opened pages or applications
    void terminated(); // the program asked to end
    // Something an application did that a person should see: "Relay", "Open Relay".
    void notified(const QString &application, const QString &what);
};

} // namespace brimshade::desktop
