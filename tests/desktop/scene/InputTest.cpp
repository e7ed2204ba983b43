#include "SceneContext.h"

namespace brimshade::desktop {

const QRectF kFrame(300, 200, 200, 200); // of the probe: area a, area b right of it
const QPointF kInA(350, 250);
const QPointF kInB(450, 250);

TEST(Input, ReachesTheViewUnderThePointerOnly)
{
    SceneContext context;
    const auto low = context.probe(u"low"_s, kFrame);
    platform::WindowAttributes higher;
    higher.level = platform::kStatusWindowLevel;
    const auto high = context.probe(u"high"_s, kFrame.translated(150, 0), higher);
    context.recorder().take();
    context.click(kInA);
    EXPECT_EQ(context.recorder().take(), QStringList({u"enter a"_s, u"press a"_s, u"release a"_s}));
    context.click(kInB + QPointF(40, 0)); // b of the lower window lies under a of the higher one
    EXPECT_EQ(context.recorder().take(), QStringList({u"enter a"_s, u"leave a"_s, u"press a"_s, u"release a"_s}));
    EXPECT_TRUE(high->isKeyWindow());
    context.click(kInA, MouseButton::right);
    const QStringList right = context.recorder().take();
    EXPECT_TRUE(right.contains(u"press a right"_s)) << right.join(u", "_s).toStdString();
    EXPECT_TRUE(low->isKeyWindow());
    context.click({200, 600});
    EXPECT_FALSE(low->isKeyWindow());
}

} // namespace brimshade::desktop
