#include "panel/NotchShape.h"
#include "support/Test.h"

namespace brimshade::panel {

TEST(NotchShape, ItsLowerCornersFitTheFrame)
{
    const std::tuple<NotchShape, QSizeF, double> cases[] = {
        {kOpenShape, {488, 200}, 32}, {kClosedShape, {212, 32}, 10}, {kOpenShape, {488, 30}, 14.4},
        {kOpenShape, {60, 200}, 16},  {kOpenShape, {488, 14}, 0},    {kOpenShape, {10, 5}, 0},
    };
    for (const auto &[shape, frame, radius] : cases)
        EXPECT_NEAR(shape.effectiveBottom(frame), radius, 1e-9) << frame.width() << 'x' << frame.height();
}

TEST(NotchShape, RunsFromEdgeToEdgeThroughTheGivenPoints)
{
    const QPainterPath path = kOpenShape.path(QRectF(10, 20, 488, 200));
    // Ends of the four curves, in order: a curve is three elements, its last is where it ends.
    const QPointF expected[] = {{10, 20}, {24, 34}, {24, 188}, {56, 220}, {452, 220}, {484, 188}, {484, 34}, {498, 20}};
    QList<QPointF> ends;
    for (int i = 0; i < path.elementCount(); ++i) {
        const auto element = path.elementAt(i);
        const bool isControl = element.type == QPainterPath::CurveToElement
            || (element.type == QPainterPath::CurveToDataElement && i + 1 < path.elementCount()
                && path.elementAt(i + 1).type == QPainterPath::CurveToDataElement);
        if (!isControl)
            ends << QPointF(element);
    }
    ASSERT_EQ(ends.size(), 9); // closed: back at the first
    for (qsizetype i = 0; i < 8; ++i)
        EXPECT_EQ(ends[i], expected[i]) << i;
    EXPECT_EQ(ends[8], expected[0]);
}

TEST(NotchShape, BothRadiiMoveTogether)
{
    const NotchShape half = NotchShape::between(kClosedShape, kOpenShape, 0.5);
    EXPECT_DOUBLE_EQ(half.top, 10);
    EXPECT_DOUBLE_EQ(half.bottom, 21);
    const NotchShape beyond = NotchShape::between(kClosedShape, kOpenShape, 1.05);
    EXPECT_DOUBLE_EQ(beyond.top, 14.4);
    EXPECT_DOUBLE_EQ(NotchShape::between(kClosedShape, kOpenShape, -2).top, 0) << "an overshoot has no negative radius";
}

} // namespace brimshade::panel
