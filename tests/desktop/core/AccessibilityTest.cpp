#include "World.h"

using namespace brimshade::platform;

namespace brimshade::desktop {

DesktopDescription difficultDesktop()
{
    DesktopDescription description = someDesktop();
    auto odd = application(20, {});
    ExtraDescription unreadable = extra(u"unreadable"_s);
    unreadable.frameKind = ExtraDescription::Frame::unreadable;
    ExtraDescription refusing = extra(u"refusing"_s);
    refusing.actions = {u"AXShowMenu"_s};
    refusing.pressError = kAXErrorFailure;
    odd.extras = {group({extra(u"grouped"_s)}), button(QRectF(860, 0, 20, 37)), unreadable, refusing};
    auto none = application(21, {});
    none.extras.reset();
    description.applications.insert(description.applications.end(), {odd, none, application(22, {})});
    return description;
}

class AccessibilityTest : public World {
protected:
    AccessibilityTest() : World(difficultDesktop()) { }
    // The seconds that a read of an application takes on another thread, and what it ended with.
    std::pair<double, AXError> readOnWorker(int pid, double timeout)
    {
        std::pair<double, AXError> result;
        onWorker([&] {
            const auto element = accessibility().createApplication(pid);
            if (timeout >= 0)
                accessibility().setMessagingTimeout(element, timeout);
            const double start = dispatch.now();
            result.second = errorOf(element, u"AXExtrasMenuBar"_s);
            result.first = std::round((dispatch.now() - start) * 1e6) / 1e6; // the clock counts nanoseconds
        });
        return result;
    }
};

TEST_F(AccessibilityTest, ReadsTheTreeAsListedAndNamesWhatIsMissing)
{
    const auto odd = children(bar(20));
    ASSERT_EQ(odd.size(), 4u);
    EXPECT_EQ(text(odd[0], u"AXRole"_s), u"AXGroup"_s);
    ASSERT_EQ(children(odd[0]).size(), 1u);
    EXPECT_EQ(text(children(odd[0])[0], u"AXIdentifier"_s), u"grouped"_s);
    EXPECT_EQ(axFrame(odd[1]), QRectF(860, 0, 20, 37));
    EXPECT_EQ(barFrame(u"grouped"_s).width(), 30) << "what a group holds is laid out";

    const auto item = World::item(11, 0);
    const std::tuple<const char *, AXUIElement, QString, AXError> cases[] = {
        {"no extras menu bar", accessibility().createApplication(21), u"AXExtrasMenuBar"_s, kAXErrorNoValue},
        {"this program's own", accessibility().createApplication(desktop.ownPid()), u"AXExtrasMenuBar"_s,
         kAXErrorNoValue},
        {"an empty one", bar(22), u"AXChildren"_s, kAXErrorSuccess},
        {"unreadable", odd[2], u"AXPosition"_s, kAXErrorNoValue},
        {"unreadable", odd[2], u"AXSize"_s, kAXErrorNoValue},
        {"absent title", item, u"AXTitle"_s, kAXErrorNoValue},
        {"absent description", item, u"AXDescription"_s, kAXErrorNoValue},
        {"no such attribute", item, u"AXColour"_s, kAXErrorAttributeUnsupported},
        {"of another kind", bar(11), u"AXPosition"_s, kAXErrorAttributeUnsupported},
        {"of another kind", accessibility().createApplication(11), u"AXChildren"_s, kAXErrorAttributeUnsupported},
        {"no such application", accessibility().createApplication(99), u"AXRole"_s, kAXErrorInvalidUIElement},
        {"no element", nullptr, u"AXRole"_s, kAXErrorInvalidUIElement},
    };
    for (const auto &[name, element, attribute, error] : cases)
        EXPECT_EQ(errorOf(element, attribute), error) << name << " " << attribute.toStdString();
}

TEST_F(AccessibilityTest, EndsRequestsAfterTheElementsTimeoutAndNotLater)
{
    auto slow = application(11, {extra(u"a.one"_s)});
    const auto item = World::item(11, 0);
    const auto waits = [&](bool hangs, double latency, double timeout) {
        slow.hangs = hangs;
        slow.latency = latency;
        desktop.change(11, {.description = slow});
        return readOnWorker(11, timeout);
    };
    using Result = std::pair<double, AXError>;
    EXPECT_EQ(waits(true, 0, 0.25), Result(0.25, kAXErrorCannotComplete));
    EXPECT_EQ(waits(true, 0, -1), Result(6, kAXErrorCannotComplete)) << "the system's own";
    EXPECT_EQ(waits(true, 0, 0), Result(6, kAXErrorCannotComplete)) << "zero restores it";
    EXPECT_EQ(waits(false, 0.2, 0.25), Result(0.2, kAXErrorSuccess));
    EXPECT_EQ(waits(false, 0.25, 0.25), Result(0.25, kAXErrorCannotComplete));

    desktop.change(11, {.description = slow});
    EXPECT_EQ(errorOf(accessibility().createApplication(11), u"AXRole"_s), kAXErrorSuccess)
        << "the main thread waits for nobody";
    accessibility().setMessagingTimeout(accessibility().createApplication(11), 0.1);
    double took = 0;
    onWorker([&] {
        const double start = dispatch.now();
        EXPECT_EQ(errorOf(item, u"AXRole"_s), kAXErrorSuccess) << "an item does not inherit its application's";
        took = dispatch.now() - start;
    });
    EXPECT_DOUBLE_EQ(took, 0.25);
    EXPECT_EQ(accessibility().setMessagingTimeout(item, -1), kAXErrorFailure);
    EXPECT_EQ(accessibility().setMessagingTimeout(nullptr, 1), kAXErrorFailure);
}

TEST_F(AccessibilityTest, KeepsElementsOfUnchangedExtrasAndBuriesTheRest)
{
    const auto two = item(12, 0), three = item(12, 1);
    auto changed = application(12, {extra(u"b.new"_s), extra(u"b.three"_s, 50)});
    changed.extras->at(1).title = u"Three"_s;
    ASSERT_TRUE(desktop.change(12, {.description = changed}));
    EXPECT_EQ(item(12, 1), three);
    EXPECT_EQ(text(three, u"AXTitle"_s), u"Three"_s);
    EXPECT_EQ(errorOf(two, u"AXRole"_s), kAXErrorInvalidUIElement);
    EXPECT_EQ(errorOf(item(12, 0), u"AXPosition"_s), kAXErrorNoValue) << "not laid out yet";
    settle();
    EXPECT_EQ(axFrame(three).size(), QSizeF(50, 37));
    EXPECT_LT(axFrame(item(12, 0)).x(), axFrame(three).x()) << "a new item comes at the left end";

    desktop.quit(12);
    EXPECT_EQ(errorOf(three, u"AXRole"_s), kAXErrorInvalidUIElement);
    ASSERT_TRUE(desktop.launch({.description = changed}));
    EXPECT_EQ(errorOf(three, u"AXRole"_s), kAXErrorInvalidUIElement) << "the same pid is another process";
    EXPECT_EQ(errorOf(item(12, 1), u"AXRole"_s), kAXErrorSuccess);
    EXPECT_FALSE(desktop.launch({.description = changed})) << "the pid is taken";
    EXPECT_FALSE(desktop.launch({.description = application(desktop.ownPid(), {})}));
    EXPECT_FALSE(desktop.quit(99));
}

} // namespace brimshade::desktop
