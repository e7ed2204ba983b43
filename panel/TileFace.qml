pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Model
import Brimshade.Ui

// A rounded square with the item's icon or symbol. Its look changes only by opacities, so the pictures stay. What shows
// at rest has its alpha in its colour, which has finer steps than an item's opacity.
Item {
    id: root

    required property var icon
    required property string symbol
    required property color tint
    required property bool isHidden
    required property bool hovered
    required property bool scaled // by an ancestor
    required property real sharpness // 0: wholly blurred, 1: not at all
    required property var overlay
    required property bool wantsAttention

    readonly property real shown: motion.clamped
    readonly property bool resampled: root.scaled || root.scale !== 1
    readonly property real restFill: root.isHidden ? 0.06 : 0.035

    // The white that, laid over white of opacity `rest`, gives white of opacity `highlighted`.
    function added(rest: real, highlighted: real): color {
        return Qt.rgba(1, 1, 1, (highlighted - rest) / (1 - rest));
    }

    width: PanelMetrics.faceSide
    height: PanelMetrics.faceSide
    scale: 1 + 0.07 * motion.value

    SpringValue {
        id: motion
        target: root.hovered ? 1 : 0
        response: 0.28
        damping: 0.6
    }

    RoundedShape {
        objectName: "background"
        smooth: root.resampled
        anchors.fill: parent
        radius: 16
        color: Qt.rgba(1, 1, 1, root.restFill)
        strokeColor: Qt.rgba(1, 1, 1, 0.06)
        strokeWidth: 0.5
    }
    RoundedShape {
        anchors.fill: parent
        visible: root.shown > 0
        opacity: root.shown
        radius: 16
        color: root.added(root.restFill, 0.11)
    }
    RoundedShape {
        objectName: "glow"
        anchors.fill: parent
        visible: root.shown > 0
        opacity: root.shown
        radius: 16
        gradient: RoundedShape.Radial
        color: Qt.alpha(root.tint, 0.55)
        endColor: Qt.alpha(root.tint, 0)
        startRadius: 2
        endRadius: 40
    }
    RoundedShape {
        anchors.fill: parent
        visible: root.shown > 0
        opacity: root.shown
        radius: 16
        strokeColor: root.added(0.06, 0.18)
        strokeWidth: 0.5
    }
    ImageView {
        anchors.fill: picture
        visible: root.shown > 0
        opacity: root.shown
        image: root.icon
        glowRadius: 10
        glowColor: Qt.alpha(root.tint, 0.6)
    }
    ImageView {
        id: picture
        objectName: "icon"
        smooth: root.resampled
        anchors.centerIn: parent
        width: 36
        height: 36
        image: root.icon
        opacity: root.sharpness
    }
    SymbolIcon {
        id: glyph
        objectName: "symbol"
        smooth: root.resampled
        anchors.centerIn: parent
        visible: picture.isNull
        name: root.symbol
        pointSize: 19
        weight: SymbolIcon.Semibold
        opacity: (0.85 + 0.15 * root.shown) * root.sharpness
    }
    Blurred {
        objectName: "blurred"
        anchors.fill: source
        visible: root.sharpness < 1
        opacity: 1 - root.sharpness
        source: picture.isNull ? glyph : picture
        radius: 8
    }
    TileMarks {
        anchors.centerIn: parent
        smooth: root.resampled
        overlay: root.overlay
        overlaySharpness: root.sharpness
        wantsAttention: root.wantsAttention
        isHidden: root.isHidden
    }
}
