#include "SceneContext.h"

namespace brimshade::desktop {

const QRectF kFrame(300, 200, 200, 200);

QRectF onScreen(const QQuickItem *item)
{
    return item->mapRectToScene(QRectF(0, 0, item->width(), item->height()));
}

TEST(Windows, AreMovedByTheirTitleBarAndClosedByTheirButton)
{
    SceneContext context;
    platform::WindowAttributes attributes;
    attributes.styleMask = platform::kStyleTitled | platform::kStyleClosable;
    const auto window = context.probe(u"probe"_s, kFrame, attributes);
    const QRectF before = context.window(u"probe"_s)->displayFrame();
    context.move(before.topLeft() + QPointF(150, 10));
    context.scene().press(MouseButton::left);
    for (int step = 1; step <= 5; ++step)
        context.move(before.topLeft() + QPointF(150 + 10 * step, 10 + 4 * step));
    context.scene().release(MouseButton::left);
    context.settle();
    EXPECT_EQ(context.window(u"probe"_s)->displayFrame(), before.translated(50, 20));
    const auto buttons = context.findAll(u"probeClose"_s);
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

} // namespace brimshade::desktop
