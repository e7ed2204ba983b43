#include "World.h"

using namespace brimshade::platform;

namespace brimshade::desktop {

DesktopDescription difficultDesktop()
{
    DesktopDescription description = someDesktop();
    auto odd = application(20, {});
    ExtraDescription unreadable = extra(u"unreadable"_s);
    unreadable.frameKind = ExtraDescription::Frame::unreadable;
    odd.extras = {group({extra(u"grouped"_s)}), button(QRectF(860, 0, 20, 37)), unreadable};
    auto none = application(21, {});
    none.extras.reset();
    description.applications.insert(description.applications.end(), {odd, none, application(22, {})});
    return description;
}

class AccessibilityTest : public World {
protected:
    AccessibilityTest() : World(difficultDesktop()) { }
};

TEST_F(AccessibilityTest, ReadsTheTreeAsListedAndNamesWhatIsMissing)
{
    const auto odd = children(bar(20));
    ASSERT_EQ(odd.size(), 3u);
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
