#include "panel/NotchTab.h"
#include "OffscreenScene.h"
#include "support/Test.h"

namespace brimshade::panel {

class NotchTabTest : public testing::Test {
protected:
    NotchTabTest()
    {
        scene.load(R"(
            import QtQuick
            import Brimshade.Panel
            Item { NotchTab { objectName: "tab"; closedSize: Qt.size(212, 32); openSize: Qt.size(488, 288) } })");
        tab = qobject_cast<NotchTab *>(scene.find(u"tab"_s));
    }

    void setOpenness(double openness) { tab->setProperty("openness", openness); }

    ui::OffscreenScene scene{{1000, 720}, 1};
    NotchTab *tab = nullptr;
};

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

} // namespace brimshade::panel
