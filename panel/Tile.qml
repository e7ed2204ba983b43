pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Model
import Brimshade.Panel
import Brimshade.Ui

// One menu bar item: its face, its name, what a click, a right click and the pointer do.
FadingGroup {
    id: root

    required property TileActions actions
    required property HelpTip helpTip
    required property bool open
    required property bool highlighted
    required property bool takesWheel // true when the panel itself does not scroll
    required property int index // across both sections, in reading order
    required property bool isNew
    required property bool isFirst
    required property bool isLeaving
    required property string extraID
    required property string name
    required property string detail
    required property var icon
    required property string symbol
    required property color tint
    required property bool isHidden

    signal gone // it was leaving and has now faded out

    enabled: !root.isLeaving
    z: root.isLeaving ? -1 : 0
    width: PanelMetrics.tileWidth
    height: PanelMetrics.tileHeight
    shown: entrance.clamped * arrival.value * departure.value
    asOne: root.highlighted // at other times hardly anything in it overlaps
    transform: [
        Scale {
            origin.x: root.width / 2
            xScale: 0.5 + 0.5 * entrance.value
            yScale: xScale
        },
        Translate { y: -14 * (1 - entrance.value) }
    ]

    Accessible.role: Accessible.Button
    Accessible.name: root.name
    Accessible.description: root.detail
    Accessible.ignored: root.isLeaving
    Accessible.onPressAction: root.actions.open(root.extraID)

    // The first items of all come in as they do at every opening.
    Component.onCompleted: {
        if (root.isNew && root.open)
            (root.isFirst ? entrance : arrival).run(0, 1);
    }
    Component.onDestruction: root.helpTip.hide(root)
    onOpenChanged: root.helpTip.hide(root)

    TileOffer {
        id: offer

        readonly property string tip: offer.toolTip !== "" ? offer.toolTip : root.name
        actions: root.actions
        extraID: root.extraID
        onTipChanged: root.helpTip.follow(root, offer.tip)
    }
    SpringValue {
        id: entrance
        target: root.open ? 1 : 0
        curve: root.open ? SpringValue.Spring : SpringValue.EaseIn
        response: 0.5
        damping: 0.7
        delay: root.open ? root.index * 0.022 + 0.07 : 0
        duration: 0.1
        precision: 6e-3 // a quarter of a point in width
    }
    SpringValue {
        id: arrival
        target: 1
        response: 0.4
        damping: 1
    }
    Fade {
        id: departure
        target: root.isLeaving ? 0 : 1
        onArrived: {
            if (root.isLeaving)
                root.gone();
        }
    }
    PressStyle {
        id: press
        pressed: area.pressed && area.pressedButtons === Qt.LeftButton
    }
    HoverHandler {
        enabled: root.enabled
        onHoveredChanged: {
            if (hovered) {
                root.actions.pointerEntered(root.extraID);
                root.helpTip.show(root, offer.tip);
            } else {
                root.actions.pointerLeft(root.extraID);
                root.helpTip.hide(root);
            }
        }
    }
    TileButtons {
        id: area
        anchors.fill: parent
        actions: root.actions
        extraID: root.extraID
        takesWheel: root.takesWheel
        onPressed: root.helpTip.hide(root)
    }
    Item {
        anchors.fill: parent
        visible: root.shown > 0 // frames spend no time on a tile whose turn has not come
        scale: press.value

        TileFace {
            objectName: "face"
            anchors.horizontalCenter: parent.horizontalCenter
            icon: root.icon
            symbol: root.symbol
            tint: root.tint
            isHidden: root.isHidden
            hovered: root.highlighted
            scaled: press.value !== 1
            sharpness: entrance.clamped
            overlay: offer.overlay
            wantsAttention: offer.wantsAttention
        }
        StyledText {
            objectName: "name"
            y: PanelMetrics.faceSide + PanelMetrics.faceSpacing
            width: parent.width
            height: parent.height - y
            text: root.name
            opacity: entrance.clamped // on top of the tile's: blurred, little of it would be seen
            size: 10
            font.weight: Font.Medium
            color: Qt.rgba(1, 1, 1, root.highlighted ? 0.95 : root.isHidden ? 0.62 : 0.45)
            elide: Text.ElideRight
            maximumLineCount: 1
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            Accessible.ignored: true
        }
    }
}
