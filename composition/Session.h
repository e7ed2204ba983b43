#pragma once
#include "desktop/core/DesktopDescription.h"
#include "desktop/services/MemoryDefaults.h"

#include <QJsonObject>
#include <QString>
#include <memory>
#include <optional>

namespace brimshade::desktop {
class Desktop;
class SceneHost;
class VirtualDispatch;
} // namespace brimshade::desktop

namespace brimshade::app {
class AppDelegate;
} // namespace brimshade::app

namespace brimshade::composition {

struct SessionOptions {
    desktop::DesktopDescription description;
    std::unique_ptr<desktop::MemoryDefaults> defaults; // null: empty, in memory
    bool isScripted = true; // its login item is that of the description, not the user's own
    bool hasWindow = false; // on the running session
    bool isRealTime = false; // always, with a window
    bool hostsTray = false;
    std::optional<QString> stateFile = {}; // keeps the places of the tray's items; absent: they are placed as they come
    double scale = 1; // pixels per point, for pictures of a script
    bool printsLog = false; // to standard error
};

// One whole Brimshade on one whole desktop: built, launched and taken down in the right order. A process may have any
// number of them one after another, but not two in virtual time at once, as a thread has only one animation clock. Main
// thread; needs a QGuiApplication.
class Session {
public:
    explicit Session(SessionOptions options);
    ~Session();
    Q_DISABLE_COPY_MOVE(Session)

    QJsonObject run(const QJsonObject &command); // one script command
    app::AppDelegate &delegate();
    desktop::Desktop &desktop();
    desktop::SceneHost &scene();
    desktop::VirtualDispatch *virtualTime(); // null in real time

private:
    class Parts;
    std::unique_ptr<Parts> m_parts;
};

} // namespace brimshade::composition
