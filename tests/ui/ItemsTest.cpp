#include "OffscreenScene.h"
#include "platform/Image.h"
#include "support/Test.h"

#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Brimshade_UiPlugin)

namespace brimshade::ui {
// The pieces that a shadow is drawn in meet wherever it stands and however large it is.
TEST(Items, AShadowHasNoSeams)
{
    for (const double scale : {1.0, 2.0}) {
        OffscreenScene scene({300, 160}, scale);
        QQuickItem *root = scene.load(R"(
            import QtQuick
            import Brimshade.Ui
            Item {
                property real off
                Shadow { x: 60.3 + parent.off; y: 60; width: 150 - 1.9 * parent.off; height: 30 + 3.1 * parent.off
                         radius: 12; blur: 15; color: "white" }
            })");
        ASSERT_TRUE(root);
        int steepest = 0;
        for (int step = 0; step < 14; ++step) {
            root->setProperty("off", step * 0.37);
            const QImage picture = scene.picture();
            for (const int y : {int(30 * scale), int(50 * scale)}) {
                for (int x = 1; x < picture.width(); ++x)
                    steepest = std::max(steepest, std::abs(qRed(picture.pixel(x, y)) - qRed(picture.pixel(x - 1, y))));
            }
        }
        EXPECT_LE(steepest, 4) << "scale " << scale;
    }
}

TEST(Items, TheSpinnerTurnsOnlyWhileItIsSeen)
{
    OffscreenScene scene({40, 40}, 1);
    QQuickItem *root = scene.load("import QtQuick\nimport Brimshade.Ui\nItem { Spinner { } }");
    ASSERT_TRUE(root);
    const QQuickItem *wheel = scene.find(u"spinnerWheel"_s);
    const auto turnedIn = [&](int milliseconds) {
        const double before = wheel->rotation();
        scene.advance(milliseconds);
        return wheel->rotation() != before;
    };
    EXPECT_TRUE(turnedIn(160));
    root->setVisible(false);
    scene.settle();
    EXPECT_FALSE(turnedIn(160));
    root->setVisible(true);
    scene.settle();
    EXPECT_TRUE(turnedIn(160));
}

// A program that draws its icon anew all the time costs what is shown of it.
TEST(Items, AnImageIsKeptWhileItIsShownAndNeverTakenForAnother)
{
    class Source : public platform::ImageSource {
    public:
        QColor color;
        void draw(QPainter &painter, const QRectF &rect) const override { painter.fillRect(rect, color); }
        QImage bitmap() const override { return filled(40, 40, color); }
    };
    Source red, blue;
    red.color = Qt::red;
    blue.color = Qt::blue;
    // Two that came one after the other at one address.
    const auto imageAt = [](Source &source) { return platform::Image({&source, [](const Source *) {}}, {40, 40}); };
    OffscreenScene scene({40, 40}, 1);
    QQuickItem *root = scene.load("import Brimshade.Ui\nImageView { }");
    ASSERT_TRUE(root);
    const auto shown = [&](const platform::Image &image) {
        root->setProperty("image", QVariant::fromValue(image));
        return scene.picture().pixelColor(20, 20);
    };
    platform::Image image = imageAt(red);
    const std::weak_ptr<const void> first = image.identity();
    EXPECT_EQ(shown(image), Qt::red);
    image = imageAt(blue);
    EXPECT_EQ(shown(image), Qt::blue);
    EXPECT_TRUE(first.expired()) << "its picture is remembered, but it is not held";
    red.color = Qt::green;
    EXPECT_EQ(shown(imageAt(red)), Qt::green);
}

} // namespace brimshade::ui
