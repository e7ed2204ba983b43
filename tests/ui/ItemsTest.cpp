#include "OffscreenScene.h"
#include "ui/SymbolTable.h"

#include <QDir>
#include <QtQml/qqmlextensionplugin.h>
#include <gtest/gtest.h>

Q_IMPORT_QML_PLUGIN(Brimshade_UiPlugin)

namespace brimshade::ui {
namespace {

using namespace Qt::StringLiterals;

// For people to look at: build/<name>/pictures.
void keep(const QImage &picture, const QString &name)
{
    QDir().mkpath(u"pictures"_s);
    picture.save(u"pictures/"_s + name + u".png"_s);
}

TEST(Items, SymbolsAreDrawnInTheirColourAtEveryScale)
{
    for (const double scale : {1.0, 2.0}) {
        OffscreenScene scene({640, 320}, scale);
        ASSERT_TRUE(scene.load(R"(
            import QtQuick
            import Brimshade.Ui
            Item {
                required property list<string> names
                Grid {
                    columns: 10; spacing: 8
                    Repeater {
                        model: parent.parent.names
                        SymbolIcon { required property string modelData; name: modelData; pointSize: 36
                                     weight: SymbolIcon.Semibold; color: "white" }
                    }
                }
                Row {
                    y: 260; spacing: 10
                    Repeater {
                        model: parent.parent.names
                        SymbolIcon { required property string modelData; name: modelData; pointSize: 11
                                     weight: SymbolIcon.Semibold; color: "white" }
                    }
                }
                SymbolIcon { objectName: "seal"; x: 580; y: 200; pointSize: 36; name: "checkmark.seal.fill"; color: "#30d158" }
            })",
                               {{u"names"_s, symbolNames()}}));
        const QImage picture = scene.picture();
        keep(picture, u"symbols@%1"_s.arg(scale));
        const QPointF seal = scene.frameOf(scene.find(u"seal"_s)).center() + QPointF(0, 11);
        EXPECT_EQ(picture.pixelColor((seal * scale).toPoint()), QColor(0x30, 0xd1, 0x58));
    }
}

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
        keep(picture, u"shapes@%1"_s.arg(scale));
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

TEST(Items, TextIsAsLargeAsItSays)
{
    OffscreenScene scene({200, 100}, 1);
    ASSERT_TRUE(scene.load(R"(
        import QtQuick
        import Brimshade.Ui
        Item {
            StyledText { objectName: "ten"; text: "Width"; size: 10 }
            StyledText { objectName: "twenty"; text: "Width"; size: 20 }
            Text { objectName: "pixels"; text: "Width"; font.family: "Inter"; font.pixelSize: 20 }
        })"));
    const double twenty = scene.find(u"twenty"_s)->implicitWidth();
    EXPECT_NEAR(scene.find(u"ten"_s)->implicitWidth() * 2, twenty, 2);
    EXPECT_NEAR(scene.find(u"pixels"_s)->implicitWidth(), twenty, 1);
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

} // namespace
} // namespace brimshade::ui
