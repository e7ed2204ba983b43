#include "SceneContext.h"
#include "desktop/builtin/BuiltInDesktop.h"

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

} // namespace brimshade::desktop
