pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// The illustration of the welcome step: a notch that opens and shows what was behind it, again and again while it can
// be seen.
Item {
    id: root

    required property list<var> icons
    property bool open: false
    property real waited: 0 // of the present wait, 0 to 1
    readonly property list<color> tints: [Theme.orange, Theme.purple, Theme.cyan, Theme.pink, Theme.green]

    function setOpen(open: bool) {
        root.open = open;
    }

    implicitWidth: 360
    implicitHeight: 170

    SequentialAnimation {
        loops: Animation.Infinite
        running: root.visible

        // Not PauseAnimation: the toolkit times a lone pause by the wall, not by the animations' clock.
        NumberAnimation {
            target: root
            property: "waited"
            from: 0
            to: 1
            duration: 600
        }
        ScriptAction {
            script: root.setOpen(true)
        }
        NumberAnimation {
            target: root
            property: "waited"
            from: 0
            to: 1
            duration: 3200
        }
        ScriptAction {
            script: root.setOpen(false)
        }
    }
    SpringValue {
        id: unfold
        target: root.open ? 1 : 0
        response: 0.55
        damping: 0.75
    }

    Shadow {
        anchors.fill: body
        anchors.topMargin: 10
        anchors.bottomMargin: -10
        radius: body.corner
        blur: 30
        color: Qt.alpha(Theme.orange, 0.35)
        opacity: unfold.clamped
    }
    HeroBody {
        id: body
        objectName: "heroBody"
        anchors.horizontalCenter: parent.horizontalCenter
        y: 0
        width: 130 + 230 * unfold.value
        height: 26 + 124 * unfold.value
        corner: 9 + 17 * Math.max(0, unfold.value)
    }
    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        y: body.y + 56
        spacing: 12

        Repeater {
            model: 5

            HeroSlot {
                image: root.icons[index]
                tint: root.tints[index]
                open: root.open
            }
        }
    }
}
