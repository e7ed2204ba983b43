#include "SceneContext.h"
#include "desktop/core/Permission.h"

namespace brimshade::desktop {

const QRectF kFrame(300, 200, 200, 200);

QRectF onScreen(const QQuickItem *item)
{
    return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
}

std::unique_ptr<platform::Window> sizedWindow(SceneContext &context, double titleStyle)
{
    platform::WindowAttributes attributes;
    attributes.name = u"sized"_s;
    attributes.styleMask = unsigned(titleStyle);
    attributes.contentSizesWindow = true;
    auto window = context.desktop().windows().createWindow(
        attributes, platform::HostedView{u"Brimshade.Probes"_s, u"SizedView"_s, {}});
    window->center();
    window->makeKeyAndOrderFront();
    context.settle();
    return window;
}

TEST(Windows, ShowTheirContentInTheirFrame)
{
    SceneContext context;
    const auto window = context.probe(u"probe"_s, kFrame);
    QQuickItem *content = context.scene().contentOf(context.window(u"probe"_s));
    ASSERT_TRUE(content);
    EXPECT_EQ(onScreen(content), kFrame);
    window->setFrame(window->frame().translated(50, -60));
    context.settle();
    EXPECT_EQ(onScreen(content), kFrame.translated(50, 60));
    window->orderOut();
    context.settle();
    EXPECT_FALSE(content->isVisible());
    EXPECT_FALSE(context.scene().picture(u"probe"_s));
}

TEST(Windows, AreAsLargeAsAContentThatSizesThem)
{
    SceneContext context;
    const auto window = sizedWindow(context, platform::kStyleTitled | platform::kStyleClosable);
    QQuickItem *content = context.scene().contentOf(context.window(u"sized"_s));
    const double bar = context.window(u"sized"_s)->titleBarHeight();
    EXPECT_GT(bar, 0);
    EXPECT_EQ(window->frame().size(), QSizeF(300, 200 + bar));
    EXPECT_EQ(onScreen(content).top(), context.window(u"sized"_s)->displayFrame().top() + bar);
    content->setProperty("wanted", 340);
    context.settle();
    EXPECT_EQ(window->frame().width(), 340);
    EXPECT_EQ(content->width(), 340);
}

TEST(Windows, AreMovedByTheirTitleBarAndClosedByTheirButton)
{
    SceneContext context;
    const auto window = sizedWindow(context, platform::kStyleTitled | platform::kStyleClosable);
    const QRectF before = context.window(u"sized"_s)->displayFrame();
    context.move(before.topLeft() + QPointF(150, 10));
    context.scene().press(MouseButton::left);
    for (int step = 1; step <= 5; ++step)
        context.move(before.topLeft() + QPointF(150 + 10 * step, 10 + 4 * step));
    context.scene().release(MouseButton::left);
    context.settle();
    EXPECT_EQ(context.window(u"sized"_s)->displayFrame(), before.translated(50, 20));
    const auto buttons = context.findAll(u"sizedClose"_s);
    ASSERT_EQ(buttons.size(), 1);
    context.click(onScreen(buttons.first()).center());
    EXPECT_FALSE(window->isVisible());
}

TEST(Windows, DropTheirContentWithThem)
{
    SceneContext context;
    auto window = context.probe(u"probe"_s, kFrame);
    const QPointer<QQuickItem> content = context.scene().contentOf(context.window(u"probe"_s));
    ASSERT_TRUE(content);
    window.reset();
    EXPECT_FALSE(content);
    context.settle();
    context.click(kFrame.center());
    context.scene().picture();
}

TEST(Windows, AreTakenOverByASceneMadeLaterAndOutliveIt)
{
    SceneContext context;
    const auto window = context.probe(u"probe"_s, kFrame);
    const QPointer<QQuickItem> content = context.scene().contentOf(context.window(u"probe"_s));
    context.remakeScene();
    EXPECT_FALSE(content);
    context.recorder().take();
    context.click(kFrame.topLeft() + QPointF(50, 50));
    EXPECT_EQ(context.recorder().take(), QStringList({u"enter a"_s, u"press a"_s, u"release a"_s}));
}

TEST(Windows, OfTheSystemGrantThePermission)
{
    DesktopDescription description = SceneContext::smallDesktop();
    description.trusted = false;
    SceneContext context(description);
    const auto setup = context.probe(u"setup"_s, QRectF(100, 60, 800, 600)); // they lie over it
    Permission &permission = context.desktop().permission();
    permission.openPrompt();
    context.settle();
    const auto buttons = context.findAll(u"promptOpenSettings"_s);
    ASSERT_EQ(buttons.size(), 1);
    context.click(onScreen(buttons.first()).center());
    EXPECT_FALSE(permission.isPromptOpen());
    ASSERT_TRUE(permission.isPageOpen());
    const auto switches = context.findAll(u"permissionSwitch"_s);
    ASSERT_EQ(switches.size(), 1);
    context.click(onScreen(switches.first()).center());
    EXPECT_TRUE(permission.isTrusted());
    context.click(onScreen(switches.first()).center());
    EXPECT_FALSE(permission.isTrusted());
    context.click(onScreen(context.findAll(u"accessibilityPageClose"_s).first()).center());
    EXPECT_FALSE(permission.isPageOpen());
}

} // namespace brimshade::desktop
