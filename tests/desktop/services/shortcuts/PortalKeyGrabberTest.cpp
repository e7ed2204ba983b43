#include "desktop/services/shortcuts/PortalKeyGrabber.h"
#include "FakePortal.h"
#include "desktop/services/shortcuts/PortalTrigger.h"
#include "platform/HotkeyCenter.h"
#include "platform/KeyCodes.h"
#include "support/PrivateBus.h"
#include "support/Waiting.h"

#include <QCoreApplication>
#include <QDBusPendingCallWatcher>

namespace brimshade::desktop {

using namespace platform;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr HotkeyCombination kSpace{kVK_Space, kCarbonControl | kCarbonOption};
constexpr HotkeyCombination kN{kVK_ANSI_N, kCarbonOption | kCarbonCommand};
constexpr HotkeyCombination kNoKey{0x7f, kCarbonCommand};
const KeyUse kPanel{1, u"Open or close Brimshade"_s};
const KeyUse kItem{22, u"Open the menu of Clip"_s};
const QString kSpaceId = u"hotkey-1-ctrl-alt-space"_s;
const QString kNId = u"hotkey-22-alt-logo-n"_s;

TEST(PortalTriggerTest, NamesTheKey)
{
    struct Case {
        HotkeyCombination combination;
        QString trigger;
    };
    for (const Case &each :
         {Case{kSpace, u"CTRL+ALT+space"_s}, Case{kN, u"ALT+LOGO+n"_s},
          Case{{kVK_ANSI_Comma, kCarbonShift}, u"SHIFT+comma"_s}, Case{{kVK_F5, 0}, u"F5"_s}, Case{kNoKey, {}}})
        EXPECT_EQ(portalTrigger(each.combination), each.trigger);
}

class PortalKeyGrabberTest : public testing::Test {
protected:
    void start(bool bindsNothing = false)
    {
        grabber = std::make_unique<PortalKeyGrabber>(own, bindsNothing);
        grabber->setPressed([this](HotkeyCombination combination) { pressed.push_back(combination); });
    }
    void startBound(const HotkeyCombination &combination)
    {
        start();
        EXPECT_TRUE(grabber->grab(combination, kPanel));
        waitForCall(u"BindShortcuts %1=%2"_s.arg(idOf(combination), portalTrigger(combination)));
        settleAll();
        portal->takeCalls();
    }
    static QString idOf(const HotkeyCombination &combination) { return combination == kN ? kNId : kSpaceId; }
    void waitForCall(const QString &call)
    {
        waitFor(call, [&] { return portal->has(call); });
    }
    // Waits until the other end has received everything that was sent to it before.
    static void settle(const QDBusConnection &from, const QDBusConnection &to)
    {
        const QDBusPendingCallWatcher ping(from.asyncCall(
            QDBusMessage::createMethodCall(to.baseService(), u"/"_s, u"org.freedesktop.DBus.Peer"_s, u"Ping"_s)));
        waitFor(u"the answer to a ping"_s, [&] { return ping.isFinished(); });
    }
    // A question and its answer take one round each, and up to three questions follow one another.
    void settleAll()
    {
        for (int i = 0; i < 10; ++i) {
            settle(own, portalConnection);
            QCoreApplication::processEvents();
        }
    }

    PrivateBus bus;
    QDBusConnection own = bus.connection(u"own"_s);
    QDBusConnection portalConnection = bus.connection(u"portal"_s);
    std::unique_ptr<FakePortal> portal = std::make_unique<FakePortal>(portalConnection);
    std::unique_ptr<PortalKeyGrabber> grabber;
    std::vector<HotkeyCombination> pressed;
};

TEST_F(PortalKeyGrabberTest, BindsWhatIsGrabbedAndTellsItsPresses)
{
    start();
    EXPECT_TRUE(grabber->grab(kSpace, kPanel));
    EXPECT_TRUE(grabber->grab(kN, kItem));
    EXPECT_FALSE(grabber->grab(kNoKey, kPanel));
    EXPECT_FALSE(grabber->isAvailable()) << "nobody has answered yet";
    const QString both = u"BindShortcuts hotkey-1-ctrl-alt-space=CTRL+ALT+space hotkey-22-alt-logo-n=ALT+LOGO+n"_s;
    waitForCall(both);
    EXPECT_TRUE(grabber->isAvailable());
    EXPECT_THAT(
        portal->takeCalls(),
        ElementsAre(u"Register org.brimshade.Brimshade"_s, u"CreateSession brimshade"_s, u"ListShortcuts"_s, both));
    portal->press(kNId);
    portal->press(kSpaceId);
    portal->press(u"another"_s);
    portal->press(u"/another/session"_s, kNId);
    settleAll();
    EXPECT_THAT(pressed, ElementsAre(kN, kSpace));
}

TEST_F(PortalKeyGrabberTest, AChangeIsANewSessionAndTheEndOfTheOld)
{
    startBound(kSpace);
    grabber->release(kSpace);
    EXPECT_TRUE(grabber->grab(kN, kItem));
    waitForCall(u"BindShortcuts hotkey-22-alt-logo-n=ALT+LOGO+n"_s);
    EXPECT_THAT(portal->takeCalls(),
                ElementsAre(u"Close session"_s, u"CreateSession brimshade"_s, u"ListShortcuts"_s,
                            u"BindShortcuts hotkey-22-alt-logo-n=ALT+LOGO+n"_s));
    portal->press(kSpaceId);
    portal->press(kNId);
    settleAll();
    EXPECT_THAT(pressed, ElementsAre(kN));

    grabber->release(kN);
    settleAll();
    EXPECT_THAT(portal->takeCalls(), ElementsAre(u"Close session"_s));
    EXPECT_TRUE(grabber->grab(kN, kItem));
    settleAll();
    portal->takeCalls();
    grabber.reset();
    settle(own, portalConnection);
    EXPECT_THAT(portal->takeCalls(), ElementsAre(u"Close session"_s));
}

TEST_F(PortalKeyGrabberTest, AChangeWhileTheUserIsAskedTakesTheQuestionBack)
{
    startBound(kSpace);
    portal->isSilent = true;
    grabber->release(kSpace);
    EXPECT_TRUE(grabber->grab(kN, kItem));
    settleAll(); // the grabber waits for its session
    grabber->release(kN);
    portal->isSilent = false;
    EXPECT_TRUE(grabber->grab(kSpace, kPanel));
    settleAll();
    EXPECT_THAT(portal->takeCalls(), ElementsAre(u"Close session"_s, u"CreateSession brimshade"_s));
}

TEST_F(PortalKeyGrabberTest, WhatAnOlderPortalKnowsIsNotBoundAgain)
{
    portal->known = {kSpaceId, u"another"_s};
    start();
    EXPECT_TRUE(grabber->grab(kSpace, kPanel));
    waitForCall(u"ListShortcuts"_s);
    settleAll();
    portal->press(kSpaceId);
    settleAll();
    EXPECT_FALSE(portal->has(u"BindShortcuts hotkey-1-ctrl-alt-space=CTRL+ALT+space"_s));
    EXPECT_THAT(pressed, ElementsAre(kSpace));
}

TEST_F(PortalKeyGrabberTest, ANewerPortalIsToldEachTime)
{
    portal->version = 2;
    portal->known = {kSpaceId};
    startBound(kSpace);
}

TEST_F(PortalKeyGrabberTest, ARefusalIsBorneAndTheNextChangeAsksAgain)
{
    portal->response = 1;
    start();
    EXPECT_TRUE(grabber->grab(kSpace, kPanel));
    waitForCall(u"CreateSession brimshade"_s);
    settleAll();
    portal->takeCalls();
    portal->response = 0;
    EXPECT_TRUE(grabber->grab(kN, kItem));
    settleAll();
    EXPECT_TRUE(portal->has(u"BindShortcuts hotkey-1-ctrl-alt-space=CTRL+ALT+space hotkey-22-alt-logo-n=ALT+LOGO+n"_s));
}

TEST_F(PortalKeyGrabberTest, OnlyThePortalIsBelieved)
{
    startBound(kSpace);
    auto forged = QDBusMessage::createSignal(portal::kPath, portal::kGlobalShortcuts, u"Activated"_s);
    forged.setArguments(
        {QVariant::fromValue(QDBusObjectPath(portal->session())), kSpaceId, qulonglong(1), QVariantMap()});
    const QDBusConnection stranger = bus.connection(u"stranger"_s);
    stranger.send(forged);
    settle(own, stranger);
    EXPECT_THAT(pressed, IsEmpty());
    portal->closeSession();
    settleAll();
    portal->press(kSpaceId); // in a session that is closed
    settleAll();
    EXPECT_THAT(pressed, IsEmpty());
}

TEST_F(PortalKeyGrabberTest, FollowsThePortalsComingAndGoing)
{
    int changes = 0;
    portal.reset();
    start();
    QObject::connect(grabber.get(), &PortalKeyGrabber::availabilityChanged, grabber.get(), [&] { ++changes; });
    EXPECT_TRUE(grabber->grab(kSpace, kPanel));
    settleAll();
    EXPECT_FALSE(grabber->isAvailable());
    for (int i = 0; i < 2; ++i) { // the second one belongs to another process
        portal = std::make_unique<FakePortal>(portalConnection);
        waitForCall(u"BindShortcuts hotkey-1-ctrl-alt-space=CTRL+ALT+space"_s);
        EXPECT_TRUE(grabber->isAvailable());
        portal->press(kSpaceId);
        settleAll();
        portal.reset();
        waitFor(u"the end of the portal"_s, [&] { return !grabber->isAvailable(); });
    }
    EXPECT_EQ(changes, 4);
    EXPECT_THAT(pressed, ElementsAre(kSpace, kSpace));
}

TEST_F(PortalKeyGrabberTest, APortalWithoutShortcutsIsAskedForNone)
{
    portal->version = 0;
    start();
    EXPECT_TRUE(grabber->grab(kSpace, kPanel));
    settleAll();
    EXPECT_FALSE(grabber->isAvailable());
    EXPECT_THAT(portal->takeCalls(), ElementsAre(u"Register org.brimshade.Brimshade"_s));

    start(true); // this portal only pretends, so it is left alone
    EXPECT_TRUE(grabber->grab(kSpace, kPanel));
    settleAll();
    EXPECT_FALSE(grabber->isAvailable());
    EXPECT_THAT(portal->takeCalls(), IsEmpty());
}

} // namespace brimshade::desktop
