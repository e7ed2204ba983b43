#include "SceneContext.h"

namespace brimshade::desktop {

const QRectF kFrame(300, 200, 200, 200);

TEST(Animations, FollowTheVirtualClockExactly)
{
    SceneContext context;
    context.advance(12.34); // the clock does not begin at the animation
    const auto window = context.probe(u"probe"_s, kFrame);
    QQuickItem *view = context.scene().contentOf(context.window(u"probe"_s));
    view->setProperty("isMoved", true);
    context.settle();
    const double start = context.clock().now();
    double last = 0;
    for (const double step : {0.05, 0.1, 0.014, 0.006, 0.13 - 0.001, 0.001, 0.2}) {
        context.advance(step);
        const double at = (context.clock().now() - start) / 0.3; // a linear animation of 0.3 s over 100 points
        EXPECT_NEAR(view->property("mark").toDouble(), std::min(100.0, 100 * at), 0.34) << at; // a millisecond
        EXPECT_GE(view->property("mark").toDouble(), last);
        last = view->property("mark").toDouble();
    }
    EXPECT_EQ(last, 100);
}

TEST(Animations, AskForNoFrameOnceTheyEnded)
{
    SceneContext context;
    context.settle();
    EXPECT_FALSE(context.scene().isAnimating());
    const auto window = context.probe(u"probe"_s, kFrame);
    EXPECT_FALSE(context.scene().isAnimating());
    QQuickItem *view = context.scene().contentOf(context.window(u"probe"_s));
    view->setProperty("isMoved", true);
    context.settle();
    EXPECT_TRUE(context.scene().isAnimating());
    context.advance(0.29);
    EXPECT_TRUE(context.scene().isAnimating());
    context.advance(0.05);
    EXPECT_FALSE(context.scene().isAnimating());
    // A later one begins when it begins, not where the first one left the clock.
    context.advance(100);
    view->setProperty("isMoved", false);
    context.settle();
    context.advance(0.15);
    EXPECT_NEAR(view->property("mark").toDouble(), 50, 0.34);
}

} // namespace brimshade::desktop
