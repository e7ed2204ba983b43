#include "Driver.h"

using namespace brimshade::platform;

namespace brimshade::contract {

class AccessibilityContract : public Contract {
protected:
    AXError errorOf(const AXUIElement &element, const QString &attribute)
    {
        const auto value = platform.accessibility.copyAttributeValue(element, attribute);
        return value ? kAXErrorSuccess : value.error();
    }
    AXError perform(const AXUIElement &element, const QString &action)
    {
        AXError result = kAXErrorFailure;
        onWorker([&] { result = platform.accessibility.performAction(element, action); });
        return result;
    }
};

TEST_F(AccessibilityContract, FindsItemsThroughTheExtrasMenuBar)
{
    const int pid = driver->launch({{u"first"_s}, {u"second"_s}});
    driver->settleMenuBar();
    const auto elements = items(pid);
    ASSERT_EQ(elements.size(), 2u);
    const auto identifier = platform.accessibility.copyAttributeValue(elements[0], u"AXIdentifier"_s);
    ASSERT_TRUE(identifier);
    EXPECT_EQ(std::get<QString>(*identifier), u"first"_s);
    EXPECT_EQ(errorOf(elements[0], u"AXPosition"_s), kAXErrorSuccess);
    const auto size = platform.accessibility.copyAttributeValue(elements[1], u"AXSize"_s);
    ASSERT_TRUE(size);
    EXPECT_GT(std::get<QSizeF>(*size).width(), 0);
    EXPECT_NE(errorOf(elements[0], u"AXNoSuchAttribute"_s), kAXErrorSuccess);
    EXPECT_NE(errorOf(platform.accessibility.createApplication(pid), u"AXPosition"_s), kAXErrorSuccess);
}

TEST_F(AccessibilityContract, AnswersInvalidElementForAnApplicationThatQuit)
{
    const int pid = driver->launch({{u"only"_s}});
    const auto element = items(pid).at(0);
    driver->quit(pid);
    EXPECT_EQ(errorOf(element, u"AXRole"_s), kAXErrorInvalidUIElement);
    EXPECT_EQ(errorOf(platform.accessibility.createApplication(pid), u"AXExtrasMenuBar"_s), kAXErrorInvalidUIElement);
    EXPECT_EQ(perform(element, u"AXPress"_s), kAXErrorInvalidUIElement);
}

TEST_F(AccessibilityContract, AnswersDisabledWithoutThePermission)
{
    const auto element = items(driver->launch({{u"only"_s}})).at(0);
    EXPECT_TRUE(platform.accessibility.isProcessTrusted());
    driver->setTrusted(false);
    EXPECT_FALSE(platform.accessibility.isProcessTrusted());
    EXPECT_FALSE(platform.accessibility.isProcessTrustedWithOptions(true));
    EXPECT_EQ(errorOf(element, u"AXRole"_s), kAXErrorAPIDisabled);
    EXPECT_EQ(perform(element, u"AXPress"_s), kAXErrorAPIDisabled);
    driver->setTrusted(true);
    EXPECT_EQ(errorOf(element, u"AXRole"_s), kAXErrorSuccess);
}

TEST_F(AccessibilityContract, GivesUpOnAHungApplicationAfterTheMessagingTimeout)
{
    const int pid = driver->launch({{u"only"_s}});
    const auto element = items(pid).at(0);
    driver->hang(pid);
    AXError read = kAXErrorSuccess, pressed = kAXErrorSuccess;
    double readTook = 0, pressTook = 0;
    onWorker([&] {
        const auto application = platform.accessibility.createApplication(pid);
        EXPECT_EQ(platform.accessibility.setMessagingTimeout(application, 0.25), kAXErrorSuccess);
        EXPECT_EQ(platform.accessibility.setMessagingTimeout(element, 0.5), kAXErrorSuccess);
        double start = platform.dispatch.now();
        read = errorOf(application, u"AXExtrasMenuBar"_s);
        readTook = platform.dispatch.now() - start;
        start = platform.dispatch.now();
        pressed = platform.accessibility.performAction(element, u"AXPress"_s);
        pressTook = platform.dispatch.now() - start;
    });
    EXPECT_EQ(read, kAXErrorCannotComplete);
    EXPECT_EQ(pressed, kAXErrorCannotComplete);
    EXPECT_NEAR(readTook, 0.25, 0.1);
    EXPECT_NEAR(pressTook, 0.5, 0.1) << "each element has its own";
}

TEST_F(AccessibilityContract, AnswersSideBySide)
{
    std::vector<int> pids;
    for (int i = 0; i < 10; ++i)
        pids.push_back(driver->launch({{u"only"_s}}));
    for (const int pid : pids)
        driver->hang(pid);
    std::vector<AXError> errors(pids.size(), kAXErrorSuccess);
    double took = 0;
    onWorker([&] {
        const double start = platform.dispatch.now();
        platform.dispatch.concurrentPerform(pids.size(), [&](std::size_t i) {
            const auto application = platform.accessibility.createApplication(pids[i]);
            platform.accessibility.setMessagingTimeout(application, 0.25);
            errors[i] = errorOf(application, u"AXExtrasMenuBar"_s);
        });
        took = platform.dispatch.now() - start;
    });
    EXPECT_THAT(errors, testing::Each(kAXErrorCannotComplete));
    EXPECT_NEAR(took, 0.25, 0.1) << "none waits for another";
}

TEST_F(AccessibilityContract, PressesOpenMenusAndMissingActionsAreRefused)
{
    const auto elements = items(driver->launch({{u"pressed"_s, {u"AXPress"_s}, {u"Open"_s, u"-"_s, u"Quit"_s}},
                                                {u"shown"_s, {u"AXShowMenu"_s}, {u"Other"_s}}}));
    driver->settleMenuBar();
    EXPECT_EQ(perform(elements.at(1), u"AXPress"_s), kAXErrorActionUnsupported);
    EXPECT_TRUE(driver->openMenu().isEmpty());
    EXPECT_EQ(perform(elements.at(0), u"AXPress"_s), kAXErrorSuccess);
    EXPECT_EQ(driver->openMenu(), QStringList({u"Open"_s, u"-"_s, u"Quit"_s}));
    EXPECT_EQ(perform(elements.at(1), u"AXShowMenu"_s), kAXErrorSuccess);
    EXPECT_EQ(driver->openMenu(), QStringList(u"Other"_s)) << "one menu at a time";
}

TEST_F(AccessibilityContract, ListsApplicationsAndAnnouncesTheirComingAndGoing)
{
    const auto isListed = [this](int pid) {
        for (const auto &application : platform.workspace.runningApplications()) {
            if (application.processIdentifier == pid)
                return true;
        }
        return false;
    };
    EXPECT_TRUE(isListed(platform.workspace.processIdentifier())) << "this program is one of them";
    QStringList told;
    const auto observe = [&](const char *name) {
        platform.workspace.notificationCenter().addObserver(
            QLatin1StringView(name), nullptr, [&told, name] { told << QLatin1StringView(name).mid(11, 9); });
    };
    observe(kNSWorkspaceDidLaunchApplicationNotification);
    observe(kNSWorkspaceDidTerminateApplicationNotification);
    const int pid = driver->launch({{u"only"_s}});
    driver->runDue();
    EXPECT_TRUE(isListed(pid));
    driver->quit(pid);
    driver->runDue();
    EXPECT_FALSE(isListed(pid));
    EXPECT_EQ(told, QStringList({u"DidLaunch"_s, u"DidTermin"_s}));
    EXPECT_FALSE(platform.workspace.iconForFile(u"/no/such/file"_s).isNull());
}

} // namespace brimshade::contract
