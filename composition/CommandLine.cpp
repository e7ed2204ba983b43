#include "CommandLine.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace brimshade::composition {

namespace {

constexpr double kLargestScale = 4;

struct Options {
    QCommandLineOption desktop{u"desktop"_s, u"Use the desktop that <file> describes."_s, u"file"_s};
    QCommandLineOption noTray{u"no-tray"_s, u"Do not host the session's tray items."_s};
    QCommandLineOption tray{u"tray"_s, u"With --script: host the session's tray items."_s};
    QCommandLineOption defaults{u"defaults"_s, u"Keep the settings in <file>."_s, u"file"_s};
    QCommandLineOption script{
        u"script"_s, u"Carry out the commands in <file>, - for standard input, without a window."_s, u"file"_s};
    QCommandLineOption window{u"window"_s, u"With --script: show the window too, in real time."_s};
    QCommandLineOption realTime{u"real-time"_s, u"With --script: time passes as on a clock."_s};
    QCommandLineOption scale{u"scale"_s, u"With --script: pixels a point in pictures, 1 to 4."_s, u"number"_s, u"1"_s};
    QCommandLineOption help{{u"h"_s, u"help"_s}, u"Print this help."_s};
    QCommandLineOption version{{u"v"_s, u"version"_s}, u"Print the version."_s};

    QList<QCommandLineOption> all() const
    {
        return {desktop, noTray, tray, defaults, script, window, realTime, scale, help, version};
    }
};

std::optional<QString> valueOf(const QCommandLineParser &parser, const QCommandLineOption &option)
{
    return parser.isSet(option) ? std::optional(parser.value(option)) : std::nullopt;
}

std::optional<QString> faultIn(const QCommandLineParser &parser, const Options &options)
{
    if (!parser.positionalArguments().isEmpty())
        return u"unexpected argument \"%1\""_s.arg(parser.positionalArguments().constFirst());
    const bool isScript = parser.isSet(options.script);
    for (const QCommandLineOption &scriptOnly : {options.tray, options.window, options.realTime, options.scale}) {
        if (parser.isSet(scriptOnly) && !isScript)
            return u"--%1 goes with --script"_s.arg(scriptOnly.names().constFirst());
    }
    if (parser.isSet(options.tray) && parser.isSet(options.noTray))
        return u"--tray and --no-tray exclude each other"_s;
    bool isNumber = false;
    const double scale = parser.value(options.scale).toDouble(&isNumber);
    if (!isNumber || !(scale >= 1 && scale <= kLargestScale))
        return u"--scale: expected a number from 1 to 4"_s;
    return {};
}

} // namespace

std::expected<CommandLine, QString> parseCommandLine(const QStringList &arguments)
{
    const Options options;
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Every menu bar and tray item, one keystroke away."_s);
    parser.addOptions(options.all());
    if (!parser.parse(arguments))
        return std::unexpected(parser.errorText());

    CommandLine line;
    if (parser.isSet(options.help))
        line.information = parser.helpText();
    else if (parser.isSet(options.version))
        line.information = u"Brimshade " BRIMSHADE_VERSION "\n"_s;
    else if (const auto fault = faultIn(parser, options))
        return std::unexpected(*fault);

    const bool isScript = parser.isSet(options.script);
    line.desktopFile = valueOf(parser, options.desktop);
    line.defaultsFile = valueOf(parser, options.defaults);
    line.script = valueOf(parser, options.script);
    line.hostsTray = isScript ? parser.isSet(options.tray) : !parser.isSet(options.noTray);
    line.hasWindow = !isScript || parser.isSet(options.window);
    line.isRealTime = line.hasWindow || parser.isSet(options.realTime);
    line.scale = parser.value(options.scale).toDouble();
    return line;
}

} // namespace brimshade::composition
