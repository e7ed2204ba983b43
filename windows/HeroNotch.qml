pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Model
import Brimshade.Notch
import Brimshade.Ui

// The illustration of the welcome step: a notch that opens and shows what was behind it, again and again while it can
// be seen.
Item {
    id: root

    required property list<var> icons
    property bool open: false
    property real waited: 0 // of the present wait, 0 to 1
    readonly property size closedSize: Qt.size(130 + 2 * PanelMetrics.closedFlare, 26)
    readonly property size openSize: Qt.size(360 + 2 * PanelMetrics.openFlare, 150)
    readonly property list<color> tints: [Theme.orange, Theme.purple, Theme.cyan, Theme.pink, Theme.green]

    function setOpen(open: bool) {
        root.open = open;
    }

    implicitWidth: 360
    implicitHeight: 170

    SequentialAnimation {
        loops: Animation.Infinite
        running: root.visible

        // Not PauseAnimation: the toolkit times a lone pause by the wall clock, not by the animations' clock.
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

    NotchShadow {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 10
        width: root.closedSize.width + (root.openSize.width - root.closedSize.width) * unfold.value
        height: root.closedSize.height + (root.openSize.height - root.closedSize.height) * unfold.value
        blur: 30
        color: Qt.alpha(Theme.orange, 0.35)
        opacity: unfold.clamped
    }
    NotchTab {
        objectName: "heroBody"
        closedSize: root.closedSize
        openSize: root.openSize
        openness: unfold.value
        bordered: true
    }
    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 56
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
