#include "composition/CommandLine.h"
#include "support/Test.h"

namespace brimshade::composition {

using desktop::session::NotchChoice;
using Kind = NotchChoice::Kind;

namespace {

std::expected<CommandLine, QString> parse(const QString &arguments)
{
    return parseCommandLine(QStringList{u"brimshade"_s} + arguments.split(u' ', Qt::SkipEmptyParts));
}

} // namespace

TEST(CommandLineTest, WhatIsAskedForTogetherIsRefused)
{
    struct Case {
        QString arguments, message;
    };
    for (const Case &each : {
             Case{u"--session --desktop d"_s, u"--session and --desktop cannot be combined"_s},
             Case{u"--session --script - --tray"_s, u"--session and --tray cannot be combined"_s},
             Case{u"--session --script - --real-time --window"_s, u"--session and --window cannot be combined"_s},
             Case{u"--session --script - --real-time --scale 2"_s, u"--session and --scale cannot be combined"_s},
             Case{u"--session --script -"_s, u"--script requires --real-time"_s},
             Case{u"--session --real-time"_s, u"--real-time requires --script"_s},
             Case{u"--screen eDP-1"_s, u"--screen requires --session"_s},
             Case{u"--script - --notch none"_s, u"--notch requires --session"_s},
             Case{u"--session --toggle"_s, u"--toggle cannot be combined with other options"_s},
             Case{u"--quit --quit"_s, u"--quit cannot be combined with other options"_s},
             Case{u"--quit --state s"_s, u"--quit cannot be combined with other options"_s},
             Case{u"--session --toggle now"_s, u"unexpected argument \"now\""_s},
             Case{u"--session --screen="_s, u"--screen: expected a name"_s},
             Case{u"--state="_s, u"--state: expected a file"_s},
         }) {
        const auto line = parse(each.arguments);
        EXPECT_EQ(line ? u"none"_s : line.error(), each.message) << qPrintable(each.arguments);
    }
}

TEST(CommandLineTest, ASessionHasADisplayAndTheTray)
{
    const CommandLine plain = parse(u"--session"_s).value();
    EXPECT_TRUE(plain.isSession && plain.hasWindow && plain.isRealTime && plain.hostsTray);
    EXPECT_FALSE(plain.screen || plain.notch || plain.stateFile || plain.script);

    const CommandLine full =
        parse(u"--session --screen eDP-1 --no-tray --defaults d --state s --script - --real-time"_s).value();
    EXPECT_TRUE(full.isSession && full.hasWindow && full.isRealTime && !full.hostsTray);
    EXPECT_EQ(full.screen, u"eDP-1"_s);
    EXPECT_EQ(full.defaultsFile, u"d"_s);
    EXPECT_EQ(full.stateFile, u"s"_s);
    EXPECT_EQ(full.script, u"-"_s);
    EXPECT_TRUE(parse(u"--session --script - --real-time"_s).value().hostsTray);
}

TEST(CommandLineTest, ADesktopOfItsOwnKeepsItsState)
{
    EXPECT_EQ(parse(u"--state s"_s).value().stateFile, u"s"_s);
    const CommandLine script = parse(u"--script - --state s"_s).value();
    EXPECT_EQ(script.stateFile, u"s"_s);
    EXPECT_FALSE(script.isSession || script.hasWindow || script.hostsTray || script.isRealTime);
}

TEST(CommandLineTest, TheNotchIsDrawnNoneOrASpanOfPoints)
{
    struct Case {
        QString text;
        std::optional<NotchChoice> notch;
    };
    for (const Case &each : {
             Case{u"drawn"_s, NotchChoice{Kind::drawn, 0, 0}},
             Case{u"none"_s, NotchChoice{Kind::none, 0, 0}},
             Case{u"663,849"_s, NotchChoice{Kind::given, 663, 849}},
             Case{u"0,0.5"_s, NotchChoice{Kind::given, 0, 0.5}},
             Case{u"663"_s, {}},
             Case{u"663,849,900"_s, {}},
             Case{u"849,663"_s, {}},
             Case{u"663,663"_s, {}},
             Case{u"-1,5"_s, {}},
             Case{u"1,nan"_s, {}},
             Case{u"nan,1"_s, {}},
             Case{u"1,inf"_s, {}},
             Case{u"1,1e9"_s, {}},
             Case{u"a,b"_s, {}},
             Case{u","_s, {}},
             Case{u"Drawn"_s, {}},
         }) {
        const auto line = parse(u"--session --notch="_s + each.text);
        EXPECT_EQ(line.has_value(), each.notch.has_value()) << qPrintable(each.text);
        if (line)
            EXPECT_EQ(line->notch, each.notch) << qPrintable(each.text);
        else
            EXPECT_TRUE(line.error().startsWith(u"--notch: expected LOWER,UPPER"_s)) << qPrintable(line.error());
    }
}

TEST(CommandLineTest, HelpComesBeforeEveryComplaint)
{
    const QString help = parse(u"--help --toggle --session"_s).value().information.value_or(QString());
    for (const QString &option : {u"--session"_s, u"--notch"_s, u"--toggle"_s, u"--state"_s, u"--script"_s})
        EXPECT_TRUE(help.contains(option)) << qPrintable(option);
}

} // namespace brimshade::composition
