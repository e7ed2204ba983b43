#include "CommandLine.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace brimshade::composition {

namespace {

constexpr double kLargestScale = 4;
constexpr double kWidestScreen = 32767; // points; no display server has a wider one

struct Options {
    QCommandLineOption session{u"session"_s, u"Be the menu bar of the session it is started in."_s};
    QCommandLineOption screen{u"screen"_s, u"With --session: the screen with the bar, such as \"eDP-1\"."_s, u"name"_s};
    QCommandLineOption notch{
        u"notch"_s,
        u"With --session: the notch, <lower,upper> in points from the screen's left edge, \"drawn\" or \"none\"."_s,
        u"notch"_s};
    QCommandLineOption toggle{u"toggle"_s, u"Open or close the panel of the Brimshade running in this session."_s};
    QCommandLineOption settings{u"settings"_s, u"Open its settings."_s};
    QCommandLineOption quit{u"quit"_s, u"Quit it."_s};
    QCommandLineOption open{u"open"_s, u"Open the menu of its item named <name>."_s, u"name"_s};
    QCommandLineOption list{u"list"_s, u"Print its items."_s};
    QCommandLineOption json{u"json"_s, u"With --list: as JSON."_s};
    QCommandLineOption desktop{u"desktop"_s, u"Use the desktop that <file> describes."_s, u"file"_s};
    QCommandLineOption noTray{u"no-tray"_s, u"Do not host the session's tray items."_s};
    QCommandLineOption tray{u"tray"_s, u"With --script: host the session's tray items."_s};
    QCommandLineOption defaults{u"defaults"_s, u"Keep the settings in <file>."_s, u"file"_s};
    QCommandLineOption state{u"state"_s, u"Keep the order of the tray items in <file>."_s, u"file"_s};
    QCommandLineOption script{
        u"script"_s, u"Carry out the commands in <file>, - for standard input, without a window."_s, u"file"_s};
    QCommandLineOption window{u"window"_s, u"With --script: show the window too, in real time."_s};
    QCommandLineOption realTime{u"real-time"_s, u"With --script: time passes as on a clock."_s};
    QCommandLineOption scale{u"scale"_s, u"With --script: pixels per point in pictures, 1 to 4."_s, u"number"_s,
                             u"1"_s};
    QCommandLineOption debug{u"debug"_s, u"Log to standard error what it does and what it runs on."_s};
    QCommandLineOption help{{u"h"_s, u"help"_s}, u"Print this help."_s};
    QCommandLineOption version{{u"v"_s, u"version"_s}, u"Print the version."_s};

    QList<QCommandLineOption> all() const
    {
        return {session, screen,   notch, toggle, settings, quit,     open,  list,  json, desktop, noTray,
                tray,    defaults, state, script, window,   realTime, scale, debug, help, version};
    }
};

using Fault = std::optional<QString>;

QString written(const QCommandLineOption &option)
{
    return u"--"_s + option.names().constFirst();
}

std::optional<QString> valueOf(const QCommandLineParser &parser, const QCommandLineOption &option)
{
    return parser.isSet(option) ? std::optional(parser.value(option)) : std::nullopt;
}

std::optional<desktop::session::NotchChoice> parseNotch(const QString &text)
{
    using Kind = desktop::session::NotchChoice::Kind;
    const auto choice = desktop::session::parseNotchChoice(text);
    const bool isOffered = choice
        && (choice->kind == Kind::drawn || choice->kind == Kind::none
            || (choice->kind == Kind::given && choice->upper <= kWidestScreen));
    return isOffered ? choice : std::nullopt;
}

// The launcher handles a request to the running Brimshade; one gets here only when combined with other options.
Fault faultInRequest(const QCommandLineParser &parser, const Options &options)
{
    for (const QCommandLineOption &each :
         {options.toggle, options.settings, options.quit, options.open, options.list}) {
        if (parser.isSet(each))
            return u"%1 cannot be combined with other options"_s.arg(written(each));
    }
    if (parser.isSet(options.json))
        return u"--json requires --list"_s;
    return {};
}

Fault faultInCompany(const QCommandLineParser &parser, const Options &options)
{
    const QCommandLineOption &session = options.session, &script = options.script;
    const auto needs = [&](const QList<QCommandLineOption> &dependents, const QCommandLineOption &needed) -> Fault {
        for (const QCommandLineOption &each : dependents) {
            if (parser.isSet(each) && !parser.isSet(needed))
                return u"%1 requires %2"_s.arg(written(each), written(needed));
        }
        return {};
    };
    const auto excludes = [&](const QCommandLineOption &one, const QList<QCommandLineOption> &others) -> Fault {
        for (const QCommandLineOption &each : others) {
            if (parser.isSet(one) && parser.isSet(each))
                return u"%1 and %2 cannot be combined"_s.arg(written(one), written(each));
        }
        return {};
    };
    if (const Fault fault = needs({options.screen, options.notch}, session))
        return fault;
    if (const Fault fault = excludes(session, {options.desktop, options.tray, options.window, options.scale}))
        return fault;
    if (const Fault fault = needs({options.tray, options.window, options.realTime, options.scale}, script))
        return fault;
    if (const Fault fault = excludes(options.tray, {options.noTray}))
        return fault;
    // Other programs do not know virtual time.
    return parser.isSet(session) ? needs({script}, options.realTime) : std::nullopt;
}

Fault faultInValues(const QCommandLineParser &parser, const Options &options)
{
    for (const auto &each : {options.screen, options.desktop, options.defaults, options.state, options.script}) {
        if (parser.isSet(each) && parser.value(each).isEmpty())
            return u"%1: expected a %2"_s.arg(written(each), each.valueName());
    }
    if (parser.isSet(options.notch) && !parseNotch(parser.value(options.notch)))
        return u"--notch: expected LOWER,UPPER with 0 ≤ LOWER < UPPER, \"drawn\" or \"none\""_s;
    bool isNumber = false;
    const double scale = parser.value(options.scale).toDouble(&isNumber);
    if (!isNumber || !(scale >= 1 && scale <= kLargestScale))
        return u"--scale: expected a number from 1 to 4"_s;
    return {};
}

Fault faultIn(const QCommandLineParser &parser, const Options &options)
{
    if (!parser.positionalArguments().isEmpty())
        return u"unexpected argument \"%1\""_s.arg(parser.positionalArguments().constFirst());
    for (const auto check : {faultInRequest, faultInCompany, faultInValues}) {
        if (const Fault fault = check(parser, options))
            return fault;
    }
    return {};
}

CommandLine read(const QCommandLineParser &parser, const Options &options)
{
    CommandLine line;
    const bool isScript = parser.isSet(options.script);
    line.isSession = parser.isSet(options.session);
    line.screen = valueOf(parser, options.screen);
    line.notch = parseNotch(parser.value(options.notch));
    line.desktopFile = valueOf(parser, options.desktop);
    line.defaultsFile = valueOf(parser, options.defaults);
    line.stateFile = valueOf(parser, options.state);
    line.script = valueOf(parser, options.script);
    line.hostsTray = isScript && !line.isSession ? parser.isSet(options.tray) : !parser.isSet(options.noTray);
    line.hasWindow = !isScript || line.isSession || parser.isSet(options.window);
    line.isRealTime = line.hasWindow || parser.isSet(options.realTime);
    line.scale = parser.value(options.scale).toDouble();
    line.printsLog = parser.isSet(options.debug);
    return line;
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

    CommandLine information;
    if (parser.isSet(options.help))
        information.information = parser.helpText();
    else if (parser.isSet(options.version))
        information.information = u"Brimshade " BRIMSHADE_VERSION "\n"_s;
    if (information.information)
        return information;
    if (const Fault fault = faultIn(parser, options))
        return std::unexpected(*fault);
    return read(parser, options);
}

} // namespace brimshade::composition
