#include "OffscreenScene.h"
#include "support/Test.h"
#include "ui/notch/NotchShape.h"
#include "ui/notch/NotchTab.h"

namespace brimshade::panel {

using namespace brimshade::ui;

constexpr NotchShape kOpenShape{14, 32};
constexpr NotchShape kClosedShape{6, 10};

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

struct TabScene {
    explicit TabScene(double scale) : scene({1000, 720}, scale)
    {
        scene.load(R"(
            import QtQuick
            import Brimshade.Notch
            Item { NotchTab { objectName: "tab"; closedSize: Qt.size(212, 32); openSize: Qt.size(488, 288) } })");
        tab = qobject_cast<NotchTab *>(scene.find(u"tab"_s));
    }

    void setOpenness(double openness) { tab->setProperty("openness", openness); }

    ui::OffscreenScene scene;
    NotchTab *tab = nullptr;
};

// What the tab should look like, from its outline as a whole.
QImage paintedAtOnce(const TabScene &from, QSize size, double openness, double scale)
{
    const auto snapped = [scale](double length) { return std::round(length * scale) / scale; };
    const NotchShape exact = NotchShape::between(kClosedShape, kOpenShape, openness);
    const NotchShape shape{snapped(exact.top), snapped(exact.bottom)};
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(ui::kBackground);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    const QRectF frame = from.scene.frameOf(from.tab);
    painter.fillPath(shape.path(frame), Qt::black);
    QLinearGradient fade(0, 0, 0, frame.height());
    fade.setColorAt(0, QColor(255, 255, 255, 0));
    fade.setColorAt(1, QColor::fromRgbF(1, 1, 1, float(0.12 * std::min(1.0, openness))));
    painter.strokePath(shape.path(frame), QPen(QBrush(fade), 1));
    return image;
}

// The pieces in which the tab is drawn meet without gaps or overlaps.
TEST(NotchTab, LooksLikeTheWholeOutlinePaintedAtOnce)
{
    for (const double scale : {1.0, 1.25, 2.0}) {
        TabScene tab(scale);
        for (const double openness : {0.0, 0.13, 0.5, 0.77, 0.9, 0.97, 0.985, 1.0, 1.04}) {
            tab.setOpenness(openness);
            const QImage picture = tab.scene.picture();
            const QImage expected = paintedAtOnce(tab, picture.size(), openness, scale);
            int worst = 0;
            for (int y = 0; y < int(330 * scale); ++y) {
                for (int x = int(230 * scale); x < int(770 * scale); ++x)
                    worst = std::max(worst, std::abs(qRed(picture.pixel(x, y)) - qRed(expected.pixel(x, y))));
            }
            EXPECT_LE(worst, 3) << "openness " << openness << " at scale " << scale;
        }
    }
}

TEST(NotchTab, ShowsItsContentInsideItsOutlineAndLosesLittle)
{
    TabScene scene(1);
    const NotchTab *tab = scene.tab;
    scene.setOpenness(1);
    const QRectF open = tab->interior();
    int held = 0;
    for (double openness = 0; openness < 1.061; openness += 0.005) {
        scene.setOpenness(openness);
        const QRectF frame = scene.scene.frameOf(tab);
        const NotchShape shape = NotchShape::between(kClosedShape, kOpenShape, openness);
        const QPainterPath path = shape.path(frame);
        const QRectF interior = tab->interior();
        ASSERT_FALSE(interior.isEmpty());
        for (const QPointF corner : {interior.bottomLeft(), interior.bottomRight()})
            EXPECT_TRUE(path.contains(corner)) << "openness " << openness;
        EXPECT_LE(interior.left() - (frame.left() + shape.top), 5.1) << "openness " << openness;
        EXPECT_LE(frame.bottom() - interior.bottom(), 14.5) << "openness " << openness;
        if (!tab->holdsContent())
            continue;
        ++held;
        EXPECT_LE(interior.left() - open.left(), 3.5) << "openness " << openness;
        EXPECT_LE(open.bottom() - interior.bottom(), 7) << "openness " << openness;
    }
    EXPECT_GE(held, 15) << "of the last steps";
}

} // namespace brimshade::panel
