#pragma once
#include "desktop/session/ScreenArrangement.h"

#include <QString>
#include <QStringList>
#include <expected>
#include <optional>

namespace brimshade::composition {

struct CommandLine {
    bool isSession = false; // the session's own menu bar, not a desktop in a window
    std::optional<QString> screen; // of a session: the name of its connector
    std::optional<desktop::session::NotchChoice> notch; // of a session; absent: as the settings say
    std::optional<QString> desktopFile; // absent: the built-in desktop
    std::optional<QString> defaultsFile; // absent: the user's settings, or memory in a script
    std::optional<QString> stateFile; // absent: the user's state, or none in a script
    std::optional<QString> script; // "-" is standard input; absent: driven only by hand
    bool hasWindow = true; // on the running session; for a script only when asked for
    bool hostsTray = true;
    bool isRealTime = true; // always, with a window
    double scale = 1; // pixels per point, for pictures of a script
    bool printsLog = false; // to standard error
    std::optional<QString> information; // to print instead of starting: the help text or the version
};

// The error is one line for standard error; the exit status is 2 then.
std::expected<CommandLine, QString> parseCommandLine(const QStringList &arguments);

} // namespace brimshade::composition
