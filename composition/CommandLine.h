#pragma once
#include <QString>
#include <QStringList>
#include <expected>
#include <optional>

namespace brimshade::composition {

struct CommandLine {
    std::optional<QString> desktopFile; // absent: the built-in desktop
    std::optional<QString> defaultsFile; // absent: the user's settings, or memory in a script
    std::optional<QString> script; // "-" is standard input; absent: a window
    bool hasWindow = true; // a script has one only when asked for
    bool hostsTray = true;
    bool isRealTime = true; // always, with a window
    double scale = 1; // pixels a point, for pictures of a script
    std::optional<QString> information; // to print instead of starting: the help text or the version
};

// The error is one line for standard error; the exit status is 2 then.
std::expected<CommandLine, QString> parseCommandLine(const QStringList &arguments);

} // namespace brimshade::composition
