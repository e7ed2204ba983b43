#include "panel/NotchTab.h"
#include "OffscreenScene.h"
#include "support/Test.h"

namespace brimshade::panel {

class NotchTabTest : public testing::Test {
protected:
    explicit NotchTabTest(double scale = 1) : m_scale(scale), scene({1000, 720}, scale)
    {
        scene.load(R"(
            import QtQuick
            import Brimshade.Panel
            Item { NotchTab { objectName: "tab"; closedSize: Qt.size(212, 32); openSize: Qt.size(488, 288) } })");
        tab = qobject_cast<NotchTab *>(scene.find(u"tab"_s));
    }

    void setOpenness(double openness) { tab->setProperty("openness", openness); }
    QColor pixel(double x, double y)
    {
        return scene.picture().pixelColor(int(std::floor(x * m_scale)), int(std::floor(y * m_scale)));
    }

    double m_scale;
    ui::OffscreenScene scene;
    NotchTab *tab = nullptr;
};

class NotchTabAt2 : public NotchTabTest {
protected:
    NotchTabAt2() : NotchTabTest(2) { }
};

TEST_F(NotchTabAt2, OpenItHasALineThatFadesInFromTheTop)
{
    setOpenness(1);
    EXPECT_EQ(scene.frameOf(tab), QRectF(256, 0, 488, 288));
    const auto insideEdge = [&](double y) {
        return pixel(256 + 14 + 0.25, y).red();
    }; // black under the line's inner half
    EXPECT_LE(insideEdge(16), 3);
    EXPECT_NEAR(insideEdge(144), 255 * 0.06, 2);
    EXPECT_NEAR(insideEdge(250), 255 * 0.12 * 250 / 288, 2);
    EXPECT_NEAR(pixel(500, 287.75).red(), 255 * 0.12, 2);
    EXPECT_NEAR(pixel(500, 288.25).red(), 128 + 127 * 0.12, 2) << "the outer half lies on the desktop";
    EXPECT_EQ(pixel(500, 287.25), QColor(Qt::black));
    EXPECT_EQ(pixel(500, 288.75), ui::kBackground);
    setOpenness(0);
    EXPECT_EQ(pixel(500, 31.75), QColor(Qt::black)) << "no line while closed";
}

// The pieces that the tab is drawn in meet without a gap and without an overlap.
TEST_F(NotchTabTest, LooksLikeTheWholeOutlinePaintedAtOnce)
{
    for (const double openness : {0.0, 0.13, 0.5, 0.77, 1.0, 1.04}) {
        setOpenness(openness);
        const QImage picture = scene.picture();
        const NotchShape exact = NotchShape::between(kClosedShape, kOpenShape, openness);
        const NotchShape snapped{std::round(exact.top), std::round(exact.bottom)};
        QImage expected(picture.size(), QImage::Format_ARGB32_Premultiplied);
        expected.fill(ui::kBackground);
        QPainter painter(&expected);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF frame = scene.frameOf(tab);
        painter.fillPath(snapped.path(frame), Qt::black);
        QLinearGradient fade(0, 0, 0, frame.height());
        fade.setColorAt(0, QColor(255, 255, 255, 0));
        fade.setColorAt(1, QColor::fromRgbF(1, 1, 1, float(0.12 * std::min(1.0, openness))));
        painter.strokePath(snapped.path(frame), QPen(QBrush(fade), 1));
        painter.end();
        int worst = 0;
        for (int y = 0; y < 330; ++y) {
            for (int x = 230; x < 770; ++x)
                worst = std::max(worst, std::abs(qRed(picture.pixel(x, y)) - qRed(expected.pixel(x, y))));
        }
        EXPECT_LE(worst, 3) << "openness " << openness;
    }
}

TEST_F(NotchTabTest, ItsInteriorIsInsideTheOutlineAtEveryMoment)
{
    for (double openness = 0; openness < 1.08; openness += 0.02) {
        setOpenness(openness);
        const NotchShape shape = NotchShape::between(kClosedShape, kOpenShape, openness);
        const QPainterPath path = shape.path(scene.frameOf(tab));
        const QRectF interior = tab->interior();
        ASSERT_FALSE(interior.isEmpty());
        for (const QPointF corner : {interior.bottomLeft(), interior.bottomRight()})
            EXPECT_TRUE(path.contains(corner)) << "openness " << openness;
        EXPECT_LE(interior.width(), scene.frameOf(tab).width() - 28) << "within the body";
    }
}

TEST_F(NotchTabTest, TakesPointsInsideItsOutlineOnly)
{
    setOpenness(1);
    const QPointF offset = scene.frameOf(tab).topLeft();
    const std::tuple<QPointF, bool> cases[] = {
        {{500, 100}, true}, {{258, 100}, false}, {{271, 286}, false}, {{500, 289}, false}, {{285, 280}, true}};
    for (const auto &[point, inside] : cases)
        EXPECT_EQ(tab->contains(point - offset), inside) << point.x() << ',' << point.y();
}

} // namespace brimshade::panel
