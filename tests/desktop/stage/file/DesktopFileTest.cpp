#include "desktop/stage/file/DesktopFile.h"
#include "support/Test.h"

#include <QJsonArray>
#include <QJsonObject>

namespace brimshade::desktop {

using testing::ElementsAre;
using testing::Pair;

constexpr auto kScreens = R"("screens": [{"frame": [0, 0, 1512, 982]}])";

// A desktop with one good screen and the given applications, extras of one application, or one extra.
QByteArray withApplications(const QByteArray &applications)
{
    return "{" + QByteArray(kScreens) + R"(, "applications": )" + applications + "}";
}
QByteArray withExtras(const QByteArray &extras)
{
    return withApplications(R"([{"pid": 1, "extras": )" + extras + "}]");
}
QByteArray nested(int depth)
{
    QByteArray extra = "{}";
    for (int i = 0; i < depth; ++i)
        extra = R"({"children": [)" + extra + "]}";
    return "[" + extra + "]";
}

TEST(DesktopFileTest, ReadsEveryKey)
{
    const auto desktop = parseDesktop(R"({
        "screens": [
            {"name": "Built-in", "frame": [0, 0, 1512, 982], "menuBarHeight": 37, "notch": [663, 849]},
            {"frame": [-1920, 10.5, 1920, 1080]},
            {"frame": [0, 982, 800, 600], "notch": [0, 800], "safeAreaTop": 12}],
        "applications": [
            {"pid": 2147483647, "name": "Relay", "bundleIdentifier": "app.relay", "bundlePath": "/A/Relay.app",
             "icon": "#3b82F6", "hangs": true, "latency": 0.25, "extras": [
                {"role": "AXButton", "title": "T", "description": "", "identifier": "id", "width": 132.5,
                 "frame": [860, 0, 20, 37], "actions": [], "pressError": -25204, "menu": ["Open", "-"],
                 "symbol": "eye.fill"},
                {"frame": null, "children": [{"title": "inner"}]},
                {}]},
            {"pid": 1, "icon": null, "extras": []},
            {"pid": 2}],
        "displayNames": {"/A/Relay.app": "Relay.app"},
        "trusted": false, "menuBarShowing": false, "movesAccepted": false, "pointer": [756, -500.5],
        "loginItem": {"status": 2, "failure": "no"},
        "defaults": {"onboardingDone": true, "position": 5, "scale": 1.5, "shortcut": "none"}})");
    ASSERT_TRUE(desktop) << qPrintable(desktop.error());

    const auto &screens = desktop->screens;
    ASSERT_EQ(screens.size(), 3U);
    EXPECT_EQ(screens[0].name, u"Built-in"_s);
    EXPECT_EQ(screens[0].safeAreaTop, 37); // the bar's height, with a notch
    EXPECT_THAT(screens[0].notch, testing::Optional(Pair(663, 849)));
    EXPECT_EQ(std::tie(screens[1].frame, screens[1].menuBarHeight, screens[1].safeAreaTop),
              std::tuple(QRectF(-1920, 10.5, 1920, 1080), 24, 0));
    EXPECT_EQ(screens[2].safeAreaTop, 12);

    ASSERT_EQ(desktop->applications.size(), 3U);
    const ApplicationDescription &relay = desktop->applications[0], &empty = desktop->applications[1];
    EXPECT_EQ(std::tie(relay.pid, relay.name, relay.bundleIdentifier, relay.bundlePath, relay.icon),
              std::tuple(2147483647, u"Relay"_s, u"app.relay"_s, u"/A/Relay.app"_s, u"#3b82F6"_s));
    EXPECT_EQ(std::tie(relay.hangs, relay.latency), std::tuple(true, 0.25));
    EXPECT_THAT(empty.extras, testing::Optional(testing::IsEmpty()));
    EXPECT_EQ(empty.icon, std::nullopt);
    EXPECT_FALSE(desktop->applications[2].extras || desktop->applications[2].name);

    ASSERT_EQ(relay.extras->size(), 3U);
    const ExtraDescription &full = relay.extras->at(0), &unreadable = relay.extras->at(1), &bare = relay.extras->at(2);
    using Frame = ExtraDescription::Frame;
    EXPECT_EQ(std::tie(full.role, full.title, full.description, full.identifier, full.symbol),
              std::tuple(u"AXButton"_s, u"T"_s, u""_s, u"id"_s, u"eye.fill"_s)); // the description exists, but is empty
    EXPECT_EQ(std::tie(full.width, full.frameKind, full.frame, full.actions, full.pressError, full.menu),
              std::tuple(132.5, Frame::fixed, QRectF(860, 0, 20, 37), QStringList(), -25204,
                         QStringList({u"Open"_s, u"-"_s})));
    EXPECT_EQ(unreadable.frameKind, Frame::unreadable);
    EXPECT_EQ(unreadable.children.at(0).title, u"inner"_s);
    EXPECT_EQ(std::tie(bare.role, bare.width, bare.frameKind, bare.actions),
              std::tuple(u"AXMenuBarItem"_s, 30, Frame::laidOut, QStringList(u"AXPress"_s)));
    EXPECT_FALSE(bare.title || bare.pressError);

    EXPECT_THAT(desktop->displayNames, ElementsAre(Pair(u"/A/Relay.app"_s, u"Relay.app"_s)));
    EXPECT_FALSE(desktop->trusted || desktop->menuBarShowing || desktop->movesAccepted);
    EXPECT_EQ(desktop->pointer, QPointF(756, -500.5));
    EXPECT_EQ(std::tie(desktop->loginItem->status, desktop->loginItem->failure), std::tuple(2, u"no"_s));
    const QVariantMap types{
        {u"onboardingDone"_s, true}, {u"position"_s, 5LL}, {u"scale"_s, 1.5}, {u"shortcut"_s, u"none"_s}};
    EXPECT_EQ(desktop->defaults, types);
    EXPECT_EQ(desktop->defaults.value(u"position"_s).typeId(), QMetaType::LongLong);
}

TEST(DesktopFileTest, FaultsNameTheirPlace)
{
    struct Case {
        QByteArray json;
        const char *error;
    };
    const QByteArray screen = R"({"frame": [0, 0, 1512, 982])";
    const Case cases[] = {
        {"[]", "expected an object"},
        {"{}", "screens: missing"},
        {R"({"screens": []})", "screens: expected at least one"},
        {R"({"screens": {}})", "screens: expected an array"},
        {R"({"screens": [1]})", "screens[0]: expected an object"},
        {R"({"screens": [{"name": ""}]})", "screens[0].frame: missing"},
        {R"({"screens": [{"frame": [0, 0, 100]}]})", "screens[0].frame: expected [x, y, width, height]"},
        {R"({"screens": [{"frame": [0, 0, "1", 100]}]})", "screens[0].frame[2]: expected a number"},
        {R"({"screens": [{"frame": [0, 0, 99, 100]}]})", "screens[0].frame: expected sides from 100 to 32768"},
        {R"({"screens": [{"frame": [1e7, 0, 100, 100]}]})",
         "screens[0].frame[0]: expected a number from -1000000 to 1000000"},
        {"{\"screens\": [" + screen + R"(, "notch": [849, 663]}]})",
         "screens[0].notch: expected [lower, upper], ascending, within the screen's width"},
        {"{\"screens\": [" + screen + R"(, "notch": [663, 1513]}]})",
         "screens[0].notch: expected [lower, upper], ascending, within the screen's width"},
        {"{\"screens\": [" + screen + R"(, "notch": null}]})", "screens[0].notch: expected [lower, upper]"},
        {"{\"screens\": [" + screen + R"(, "menuBarHeight": -1}]})",
         "screens[0].menuBarHeight: expected a number from 0 to 100"},
        {"{" + QByteArray(kScreens) + R"(, "trusted": 1})", "trusted: expected true or false"},
        {"{" + QByteArray(kScreens) + R"(, "pointer": [1]})", "pointer: expected [x, y]"},
        {"{" + QByteArray(kScreens) + R"(, "pointers": [1, 1]})", "pointers: unknown key"},
        {"{" + QByteArray(kScreens) + R"(, "displayNames": {"/a": 1}})", "displayNames./a: expected a string"},
        {"{" + QByteArray(kScreens) + R"(, "defaults": {"a": []}})",
         "defaults.a: expected true, false, a number or a string"},
        {"{" + QByteArray(kScreens) + R"(, "loginItem": {"status": 4}})",
         "loginItem.status: expected a number from 0 to 3"},
        {withApplications("[{}]"), "applications[0].pid: missing"},
        {withApplications(R"([{"pid": 0}])"), "applications[0].pid: expected a number from 1 to 2147483647"},
        {withApplications(R"([{"pid": 1.5}])"), "applications[0].pid: expected a whole number"},
        {withApplications(R"([{"pid": 3}, {"pid": 7}, {"pid": 3}])"),
         "applications[2].pid: 3 is that of applications[0] already"},
        {withApplications(R"([{"pid": 1, "icon": "#12345"}])"),
         "applications[0].icon: expected #rrggbb, a picture's path or an icon's name"},
        {withApplications(R"([{"pid": 1, "icon": "/dev/zero"}])"),
         "applications[0].icon: expected a picture, /dev/zero is not one"},
        {withApplications(R"([{"pid": 1, "Name": ""}])"), "applications[0].Name: unknown key"},
        {withApplications(R"([{"pid": 1}, {"pid": 2}, {"pid": 3, "extras": [{"width": "wide"}]}])"),
         "applications[2].extras[0].width: expected a number"},
        {withExtras(R"([{"width": -1}])"), "applications[0].extras[0].width: expected a number from 0 to 32768"},
        {withExtras(R"([{"title": null}])"), "applications[0].extras[0].title: expected a string"},
        {withExtras(R"([{"menu": ["a", 1]}])"), "applications[0].extras[0].menu[1]: expected a string"},
        {withExtras(R"([{"children": [{}, {"wide": 1}]}])"), "applications[0].extras[0].children[1].wide: unknown key"},
        // Bounds: nothing in a file makes us allocate or recurse without limit.
        {withExtras(nested(201)), "applications[0].extras: expected groups at most 200 deep"},
        {withExtras("[" + QByteArray("{},").repeated(2000) + "{}]"),
         "applications[0].extras: expected at most 2000 elements"},
        {withExtras(R"([{"title": ")" + QByteArray(4097, 'a') + "\"}]"),
         "applications[0].extras[0].title: expected at most 4096 characters"},
        // What is not JSON.
        {"", "line 1, column 1: illegal value"},
        {"{\n  \"é\": 1 2}", "line 2, column 10: unterminated object"},
        {withExtras(nested(2000)), nullptr},
    };
    for (const Case &each : cases) {
        const auto desktop = parseDesktop(each.json);
        ASSERT_FALSE(desktop) << each.json.constData();
        EXPECT_TRUE(!each.error || desktop.error() == QString::fromUtf8(each.error))
            << each.json.constData() << "\n  " << qPrintable(desktop.error());
    }
    EXPECT_TRUE(parseDesktop(withExtras(nested(8))));
}

TEST(DesktopFileTest, ValuesThatAreNotNumbersAreRefused)
{
    for (const double number : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
        const auto application = parseApplication(QJsonObject{{u"pid"_s, number}}, u"application"_s);
        ASSERT_FALSE(application);
        EXPECT_EQ(application.error(), u"application.pid: expected a number"_s);
    }
    EXPECT_EQ(parseScreens(1, u"screens"_s).error(), u"screens: expected an array"_s);
    EXPECT_TRUE(parseScreens(QJsonArray(), u"screens"_s)->empty()); // every display can be unplugged
}

TEST(DesktopFileTest, FileFaultsNameTheFile)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"desk.json"_s);
    EXPECT_EQ(readDesktopFile(path).error(), path + u": No such file or directory"_s);
    EXPECT_TRUE(readDesktopFile(folder.path()).error().startsWith(folder.path() + u": "_s));

    const auto write = [&](const QByteArray &content) { writeFile(path, content); };
    write("{" + QByteArray(kScreens) + "}");
    EXPECT_TRUE(readDesktopFile(path));
    write("{}");
    EXPECT_EQ(readDesktopFile(path).error(), path + u": screens: missing"_s);
    write(QByteArray((16 << 20) + 1, ' '));
    EXPECT_EQ(readDesktopFile(path).error(), path + u": larger than 16 MB"_s);
}

} // namespace brimshade::desktop
