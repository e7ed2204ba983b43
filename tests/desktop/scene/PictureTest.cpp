#include "SceneContext.h"
#include "desktop/builtin/BuiltInDesktop.h"
#include "desktop/core/Permission.h"
#include "platform/Workspace.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace brimshade::desktop {
namespace {

const QRectF kFrame(300, 200, 200, 200);

// For people to look at: build/<name>/tests/… pictures.
void keep(const QImage &picture, const QString &name)
{
    QDir().mkpath(u"pictures"_s);
    picture.save(u"pictures/%1.png"_s.arg(name));
}

TEST(Pictures, AreTheSameWhetherDrawnAtOnceOrChangeByChange)
{
    SceneContext context;
    const QImage empty = context.scene().picture();
    const auto window = context.probe(u"probe"_s, kFrame);
    const auto menu = std::make_shared<ScriptedMenu>(std::vector{entry(1, u"Open"_s), entry(2, u"Close"_s)});
    context.desktop().menus().open(menu, QRectF(380, 180, 0, 0));
    context.settle();
    EXPECT_NE(context.scene().picture(), empty);
    window->setFrame(window->frame().translated(37, 21));
    context.desktop().menus().dismiss();
    context.settle();
    const QImage changed = context.scene().picture();
    window->orderOut();
    context.settle();
    EXPECT_EQ(context.scene().picture(), empty) << "nothing stays behind";
    window->orderFrontRegardless();
    context.remakeScene();
    EXPECT_EQ(context.scene().picture(), changed);
}

TEST(Pictures, OfAWindowShowItAloneAtTheScale)
{
    SceneContext context(SceneContext::smallDesktop(), 2);
    const auto window = context.probe(u"probe"_s, kFrame);
    const QImage before = context.scene().picture();
    EXPECT_EQ(before.size(), QSize(2000, 1400));
    const auto picture = context.scene().picture(u"probe"_s);
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->size(), QSize(400, 400));
    EXPECT_EQ(picture->pixelColor(10, 250), QColor(255, 0, 0));
    EXPECT_EQ(picture->pixelColor(300, 100).alpha(), 0) << "the desktop is not part of it";
    EXPECT_EQ(context.scene().picture(), before);
    EXPECT_FALSE(context.scene().picture(u"other"_s));
}

TEST(Pictures, OfTheBuiltInDesktopAreKeptForPeople)
{
    for (const double scale : {1.0, 2.0}) {
        SceneContext context(builtInDesktop(), scale);
        const QImage closed = context.scene().picture();
        keep(closed, u"desktop@%1"_s.arg(scale));
        const auto at = [&](double x, double y) { return closed.pixelColor(int(x * scale), int(y * scale)); };
        EXPECT_EQ(at(756, 20), QColor(Qt::black)) << "the notch";
        EXPECT_NE(at(700, 300), at(700, 900)) << "the wallpaper";
        context.click({1060, 18});
        Q_EMIT context.desktop().notified(u"Larkspur"_s, u"Review in 25 minutes"_s);
        context.advance(1);
        context.move({1060, 80});
        EXPECT_NE(context.scene().picture(), closed);
        keep(context.scene().picture(), u"menu@%1"_s.arg(scale));
    }
}

// Every kind of entry, the system's two windows and a banner, beside one another.
TEST(Pictures, OfTheDesktopsOwnWindowsAreKeptForPeople)
{
    DesktopDescription description = builtInDesktop();
    description.trusted = false;
    SceneContext context(description, 2);
    context.desktop().permission().openPrompt();
    context.settle();
    keep(context.scene().picture(), u"prompt"_s);
    context.desktop().permission().openSettingsFromPrompt();
    MenuEntry checked = entry(1, u"Show Labels"_s);
    checked.toggle = MenuEntry::Toggle::checkmark;
    checked.isOn = true;
    MenuEntry radio = entry(2, u"Large"_s);
    radio.toggle = MenuEntry::Toggle::radio;
    radio.isOn = true;
    radio.shortcut = u"⇧⌘L"_s;
    MenuEntry pictured = entry(4, u"Relay"_s);
    pictured.icon = context.desktop().platform().workspace.iconForFile(u"/Applications/Relay.app"_s);
    MenuEntry disabled = entry(5, u"Not now"_s);
    disabled.isEnabled = false;
    disabled.shortcut = u"⌘N"_s;
    MenuEntry more = entry(6, u"More"_s);
    more.hasSubmenu = true;
    for (int id = 61; id < 120; ++id)
        more.submenu.push_back(entry(id, u"Deeper entry %1"_s.arg(id)));
    const auto menu =
        std::make_shared<ScriptedMenu>(std::vector{checked, radio, separator(3), pictured, disabled, more});
    context.desktop().menus().open(menu, QRectF(700, 400, 0, 0));
    context.settle();
    context.move({760, 515});
    const QImage picture = context.scene().picture();
    keep(picture, u"page"_s);
    EXPECT_EQ(context.findAll(u"menu"_s).size(), 2);
    EXPECT_EQ(picture.pixelColor(2 * 712, 2 * 515), QColor(0x0a, 0x7a, 0xff)) << "the row under the pointer";
}

} // namespace
} // namespace brimshade::desktop
