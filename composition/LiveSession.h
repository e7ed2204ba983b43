#pragma once
#include "desktop/services/MemoryDefaults.h"
#include "desktop/session/ScreenArrangement.h"

#include <QJsonObject>
#include <QString>
#include <expected>
#include <memory>
#include <optional>

namespace brimshade::app {
class AppDelegate;
}

namespace brimshade::desktop {
class Desktop;
}

namespace brimshade::composition {

struct LiveSessionOptions {
    std::unique_ptr<desktop::MemoryDefaults> defaults; // null: empty, in memory
    desktop::session::ScreenChoice screen; // what the command line says of it
    bool isNotchSaid = false; // whether it says which notch
    bool hostsTray = true;
    std::optional<QString> stateFile; // keeps the order of the tray's items; absent: it is not kept
    bool printsLog = false; // to standard error
};

// Brimshade as the menu bar of the session that it was started in. Main thread; needs a QGuiApplication on the platform
// that ShellBackend::prepareEnvironment chose.
class LiveSession {
public:
    // The error is for standard error: what the session lacks.
    static std::expected<std::unique_ptr<LiveSession>, QString> create(LiveSessionOptions options);
    ~LiveSession();
    Q_DISABLE_COPY_MOVE(LiveSession)

    QJsonObject run(const QJsonObject &command); // one script command
    app::AppDelegate &delegate();
    desktop::Desktop &desktop();

private:
    class Parts;
    explicit LiveSession(std::unique_ptr<Parts> parts);
    std::unique_ptr<Parts> m_parts;
};

} // namespace brimshade::composition
