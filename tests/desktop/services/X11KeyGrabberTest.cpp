// Against a real X server, started for the test, with keys pressed by another client.
#include "desktop/services/X11KeyGrabber.h"
#include "model/Shortcut.h"
#include "platform/HotkeyCenter.h"
#include "platform/KeyCodes.h"
#include "support/Test.h"
#include "support/Waiting.h"

#include <QCoreApplication>
#include <QProcessEnvironment>

namespace brimshade::desktop {

using testing::ElementsAre;

constexpr HotkeyCombination kOptionCommandN{platform::kVK_ANSI_N, platform::kCarbonOption | platform::kCarbonCommand};
constexpr HotkeyCombination kControlOptionSpace{platform::kVK_Space,
                                                platform::kCarbonControl | platform::kCarbonOption};
constexpr HotkeyCombination kControlOptionCommandM{platform::kVK_ANSI_M,
                                                   platform::kCarbonControl | kOptionCommandN.modifiers};

class X11KeyGrabberTest : public testing::Test {
protected:
    void SetUp() override
    {
        server.setProgram(u"Xvfb"_s);
        server.setArguments({u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"640x480x24"_s, u"-nolisten"_s, u"tcp"_s});
        server.start();
        ASSERT_TRUE(server.waitForReadyRead()) << "Xvfb: " << qPrintable(server.errorString());
        display = ":" + server.readLine().trimmed();
        grabber = X11KeyGrabber::create(0, display);
        ASSERT_TRUE(grabber);
        grabber->setPressed([this](HotkeyCombination combination) { pressed.push_back(combination); });
    }
    void TearDown() override
    {
        grabber.reset();
        server.terminate();
        server.waitForFinished();
    }

    void run(const QString &program, const QStringList &arguments)
    {
        QProcess tool;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DISPLAY"_s, QString::fromLatin1(display));
        tool.setProcessEnvironment(environment);
        tool.start(program, arguments);
        ASSERT_TRUE(tool.waitForFinished());
        ASSERT_EQ(tool.exitCode(), 0) << tool.readAllStandardError().constData();
    }
    // Presses the keys and then a combination that is sure to come: once it has, so has everything before it.
    std::vector<HotkeyCombination> press(const QStringList &keys)
    {
        pressed.clear();
        run(u"xdotool"_s, QStringList{u"key"_s} + keys + QStringList{u"ctrl+alt+space"_s});
        waitFor(u"the combination that is sure to come"_s,
                [&] { return !pressed.empty() && pressed.back() == kControlOptionSpace; });
        pressed.pop_back();
        return pressed;
    }
    QProcess server;
    QByteArray display;
    std::unique_ptr<X11KeyGrabber> grabber;
    std::vector<HotkeyCombination> pressed;
};

TEST_F(X11KeyGrabberTest, TellsWhichCombinationWasPressed)
{
    for (const HotkeyCombination &each : {kOptionCommandN, kControlOptionSpace, kControlOptionCommandM})
        EXPECT_TRUE(grabber->grab(each, {}));
    EXPECT_FALSE(grabber->grab({1000, platform::kCarbonCommand}, {})); // not a key

    EXPECT_THAT(press({u"super+alt+n"_s, u"super+alt+ctrl+m"_s}), ElementsAre(kOptionCommandN, kControlOptionCommandM));
    EXPECT_THAT(press({u"n"_s, u"super+n"_s, u"super+alt+m"_s, u"super+alt+shift+n"_s}), ElementsAre());
    // We treat neither lock as a modifier.
    EXPECT_THAT(press({u"Num_Lock"_s, u"super+alt+n"_s}), ElementsAre(kOptionCommandN));
    EXPECT_THAT(press({u"Caps_Lock"_s, u"super+alt+n"_s}), ElementsAre(kOptionCommandN));

    grabber->release(kOptionCommandN);
    EXPECT_THAT(press({u"super+alt+n"_s}), ElementsAre());
}

// A shortcut that can be chosen but not grabbed would work only in the desktop's own window.
TEST_F(X11KeyGrabberTest, GrabsEveryShortcutThatCanBeChosen)
{
    for (const model::Shortcut shortcut : model::allShortcuts) {
        if (const auto keys = model::keyCombination(shortcut)) {
            EXPECT_TRUE(grabber->grab({keys->keyCode, keys->modifiers}, {})) << qPrintable(displayTitle(shortcut));
        }
    }
    constexpr HotkeyCombination shiftCommandSlash{platform::kVK_ANSI_Slash,
                                                  platform::kCarbonShift | platform::kCarbonCommand};
    EXPECT_TRUE(grabber->grab(shiftCommandSlash, {}));
    EXPECT_THAT(press({u"super+slash"_s, u"super+shift+slash"_s}), ElementsAre(shiftCommandSlash));
}

TEST_F(X11KeyGrabberTest, ATakenCombinationIsRefusedAndFreedWithItsOwner)
{
    auto other = X11KeyGrabber::create(0, display);
    EXPECT_TRUE(other->grab(kOptionCommandN, {}));
    EXPECT_FALSE(grabber->grab(kOptionCommandN, {}));
    other->release(kOptionCommandN);
    EXPECT_TRUE(grabber->grab(kOptionCommandN, {}));
    EXPECT_FALSE(other->grab(kOptionCommandN, {}));
}

TEST_F(X11KeyGrabberTest, FollowsTheKeyboardMapping)
{
    EXPECT_TRUE(grabber->grab(kOptionCommandN, {}));
    EXPECT_TRUE(grabber->grab(kControlOptionSpace, {}));
    run(u"setxkbmap"_s, {u"us"_s, u"dvorak"_s});
    press({}); // the notice has come
    EXPECT_THAT(press({u"super+alt+n"_s}), ElementsAre(kOptionCommandN));
    EXPECT_THAT(press({u"super+alt+b"_s}), ElementsAre()) << "the key that was N before";
    EXPECT_TRUE(grabber->grab(kControlOptionCommandM, {}));
    EXPECT_THAT(press({u"super+alt+ctrl+m"_s}), ElementsAre(kControlOptionCommandM));
}

TEST_F(X11KeyGrabberTest, AServerThatEndsIsBorne)
{
    EXPECT_TRUE(grabber->grab(kOptionCommandN, {}));
    server.kill();
    ASSERT_TRUE(server.waitForFinished());
    QCoreApplication::processEvents();
    EXPECT_FALSE(grabber->grab(kControlOptionSpace, {}));
    grabber->release(kOptionCommandN);
    EXPECT_FALSE(X11KeyGrabber::create(0, display));
}

} // namespace brimshade::desktop
