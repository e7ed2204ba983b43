#include "OffscreenScene.h"
#include "platform/Image.h"
#include "support/Test.h"

#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Brimshade_UiPlugin)

namespace brimshade::ui {
// The pieces in which a shadow is drawn meet wherever it is and however large it is.
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

TEST(Items, AnEdgeFadeCoversTheEdgesAndNothingFartherIn)
{
    for (const double scale : {1.0, 2.0}) {
        OffscreenScene scene({200, 100}, scale);
        ASSERT_TRUE(scene.load(R"(
            import QtQuick
            import Brimshade.Ui
            Rectangle { color: "white"; EdgeFade { anchors.fill: parent; depth: 14; radius: 8 } })"));
        const QImage picture = scene.picture();
        const auto light = [&](double x, double y) { return qRed(picture.pixel(int(x * scale), int(y * scale))); };
        EXPECT_LE(light(0, 50), 3);
        EXPECT_LE(light(199.5, 50), 3);
        EXPECT_LE(light(100, 99.5), 3);
        EXPECT_NEAR(light(7, 50), 128, 20);
        EXPECT_EQ(light(14.5, 50), 255);
        EXPECT_EQ(light(100, 50), 255);
        EXPECT_LE(light(2, 98), 3) << "the corner";
    }
}

TEST(Items, WhatIsBlurredSpreadsAndKeepsItsLight)
{
    for (const double scale : {1.0, 2.0}) {
        OffscreenScene scene({120, 120}, scale);
        QQuickItem *root = scene.load(R"(
            import QtQuick
            import Brimshade.Ui
            Rectangle {
                color: "black"
                property bool isBlurred: true
                RoundedShape { id: shape; x: 42; y: 42; width: 36; height: 36; color: "white"; visible: !parent.isBlurred }
                Blurred { anchors.fill: shape; source: shape; radius: 8; visible: parent.isBlurred }
            })");
        ASSERT_TRUE(root);
        const auto sum = [](const QImage &picture) {
            double total = 0;
            for (int y = 0; y < picture.height(); ++y)
                for (int x = 0; x < picture.width(); ++x)
                    total += qGreen(picture.pixel(x, y));
            return total;
        };
        const QImage soft = scene.picture();
        const auto light = [&](double x) { return qGreen(soft.pixel(int(x * scale), int(60 * scale))); };
        EXPECT_NEAR(light(60), 243, 12);
        EXPECT_NEAR(light(42), 125, 14) << "half way where the edge was";
        EXPECT_NEAR(light(34), 40, 12) << "one deviation beyond it";
        root->setProperty("isBlurred", false);
        EXPECT_NEAR(sum(soft), sum(scene.picture()), 0.06 * sum(soft));
    }
}

// A program that keeps redrawing its icon costs only what is shown of it.
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
    // Two images that were, one after the other, at the same address.
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
    EXPECT_TRUE(first.expired()) << "its picture is cached, but the source is not kept alive";
    red.color = Qt::green;
    EXPECT_EQ(shown(imageAt(red)), Qt::green);
}

// Two groups that change places over a picture, like the steps of the setup: what lies over something else in a group
// hides it at every moment. Here it is an opaque rectangle, for which the renderer leaves out what is under it.
TEST(Items, AFadingGroupLetsNothingOfItsOwnShowThrough)
{
    for (const double scale : {1.0, 1.5, 2.0}) {
        OffscreenScene scene({100, 60}, scale);
        QQuickItem *root = scene.load(R"(
            import QtQuick
            import Brimshade.Ui
            Rectangle {
                id: root
                property real shown: 0
                property color spot: "black"
                color: "#402080"
                component Card: FadingGroup {
                    id: card
                    property color face
                    x: 10; width: 80; height: 60
                    Rectangle { anchors.fill: parent; color: "white"; radius: 4 }
                    Rectangle { x: 10; y: 10; width: 60; height: 40; color: card.face }
                    Rectangle { x: 60; y: 20; width: 5; height: 5; color: root.spot }
                }
                Card { shown: 1 - root.shown; face: "#ff0000"; transform: Translate { x: -5 * root.shown } }
                Card { shown: root.shown; face: "#00ff00"; transform: Translate { x: 5 * (1 - root.shown) } }
            })");
        ASSERT_TRUE(root);
        const auto expect = [&](double shown, const char *when) {
            const QColor seen = scene.picture().pixelColor(int(40 * scale), int(40 * scale));
            // The second over the first, over what is behind both.
            const auto mixed = [shown](double behind, double first, double second) {
                return second * shown + (1 - shown) * (first * (1 - shown) + behind * shown);
            };
            const double rounding = 3; // from two groups
            EXPECT_NEAR(seen.red(), mixed(0x40, 255, 0), rounding) << when << ", " << shown << ", scale " << scale;
            EXPECT_NEAR(seen.green(), mixed(0x20, 0, 255), rounding) << when << ", " << shown << ", scale " << scale;
            EXPECT_NEAR(seen.blue(), mixed(0x80, 0, 0), rounding) << when << ", " << shown << ", scale " << scale;
        };
        for (const double shown : {0.0, 0.02, 0.3, 0.5, 0.77, 1.0}) {
            root->setProperty("shown", shown);
            expect(shown, "as it changes");
            root->setProperty("spot", QColor::fromRgbF(float(shown), 0, 1));
            expect(shown, "when something in it changes");
        }
    }
}

} // namespace brimshade::ui
