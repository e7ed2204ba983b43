#include "ui/Blur.h"
#include "support/Test.h"

namespace brimshade::ui {

TEST(Blur, SpreadsADotLikeAGaussianAndLosesNothing)
{
    for (const double deviation : {3.0, 10.0, 20.0}) {
        const int side = int(8 * deviation) | 1;
        QImage dot(side, side, QImage::Format_ARGB32_Premultiplied);
        dot.fill(Qt::transparent);
        // A block, as one pixel would vanish in eight bits.
        const int half = int(deviation) / 2;
        QPainter(&dot).fillRect(side / 2 - half, side / 2 - half, 2 * half + 1, 2 * half + 1, Qt::black);
        const QImage blurred = blurredSilhouette(dot, QColor(255, 0, 0), deviation);
        double sum = 0;
        double variance = 0;
        for (int y = 0; y < side; ++y) {
            for (int x = 0; x < side; ++x) {
                const double alpha = qAlpha(blurred.pixel(x, y)) / 255.0;
                sum += alpha;
                variance += alpha * std::pow(x - side / 2, 2);
            }
        }
        SCOPED_TRACE(deviation);
        const double area = std::pow(2 * half + 1, 2);
        const double ownVariance = (std::pow(2 * half + 1, 2) - 1) / 12;
        EXPECT_NEAR(sum / area, 1, 0.06);
        EXPECT_NEAR(std::sqrt(variance / sum - ownVariance) / deviation, 1, 0.08);
        const QRgb middle = blurred.pixel(side / 2, side / 2);
        EXPECT_EQ(qRed(middle), qAlpha(middle)) << "premultiplied red";
        EXPECT_EQ(qGreen(middle), 0);
    }
}

} // namespace brimshade::ui
