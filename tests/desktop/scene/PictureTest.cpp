#include "SceneContext.h"
#include "desktop/builtin/BuiltInDesktop.h"
#include "desktop/core/Permission.h"
#include "platform/Workspace.h"

namespace brimshade::desktop {

const QRectF kFrame(300, 200, 200, 200);

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

} // namespace brimshade::desktop
