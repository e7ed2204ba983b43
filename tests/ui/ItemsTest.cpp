#include "OffscreenScene.h"
#include "support/Test.h"

#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Brimshade_UiPlugin)

namespace brimshade::ui {

TEST(Items, ShapesShadowsAndTextOnOneSheet)
{
    for (const double scale : {1.0, 2.0}) {
        OffscreenScene scene({560, 240}, scale);
        ASSERT_TRUE(scene.load(R"(
            import QtQuick
            import Brimshade.Ui
            Item {
                Shadow { x: 40; y: 46; width: 120; height: 80; radius: 16; blur: 14; color: Qt.rgba(0, 0, 0, 0.5) }
                RoundedShape { objectName: "card"; x: 40; y: 40; width: 120; height: 80; radius: 16; color: "#ffffff"
                               strokeWidth: 4; strokeColor: "#ff0000" }
                RoundedShape { objectName: "radial"; x: 200; y: 40; width: 80; height: 80; radius: 18; gradient: RoundedShape.Radial
                               color: "#00ff00"; endColor: "#000000"; startRadius: 2; endRadius: 40 }
                RoundedShape { objectName: "fall"; x: 300; y: 40; width: 80; height: 80; radius: 40; continuous: false
                               gradient: RoundedShape.Vertical; color: "#0000ff"; endColor: "#ff0000" }
                StyledText { objectName: "text"; x: 40; y: 150; text: "Nine and a half"; size: 9.5; font.weight: Font.Bold
                             font.letterSpacing: 1.2 }
                StyledText { objectName: "text22"; x: 40; y: 170; text: "Twenty-two"; size: 22; font.weight: Font.DemiBold }
                Spinner { x: 220; y: 160; color: "white" }
            })"));
        const QImage picture = scene.picture();
        const auto at = [&](double x, double y) { return picture.pixelColor((QPointF(x, y) * scale).toPoint()); };
        EXPECT_EQ(at(100, 80), QColor(Qt::white));
        EXPECT_EQ(at(100, 42), QColor(Qt::red)) << "the stroke is inside the edge";
        EXPECT_EQ(at(100, 45), QColor(Qt::white));
        EXPECT_LT(at(100, 128).red(), at(100, 150).red()) << "the shadow falls off";
        EXPECT_LT(at(100, 150).red(), kBackground.red());
        EXPECT_GT(at(240, 80).green(), 235);
        EXPECT_LT(at(276, 80).green(), 30);
        EXPECT_GT(at(340, 44).blue(), 230);
        EXPECT_GT(at(340, 116).red(), 230);
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

} // namespace brimshade::ui
