pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Desktop
import Brimshade.Ui

// The menu bar of the screen that has the status items, and that screen's notch.
Item {
    id: root

    required property BarModel bar

    x: root.bar.frame.x
    y: root.bar.frame.y
    width: root.bar.frame.width
    height: root.bar.frame.height
    clip: true

    Accessible.role: Accessible.MenuBar
    Accessible.name: qsTr("Menu bar")

    Rectangle {
        visible: root.bar.isShowing
        anchors.fill: parent
        color: Qt.rgba(0.06, 0.05, 0.14, 0.26)
    }
    ApplicationMenus {
        visible: root.bar.isShowing
        x: 18
        height: root.height
    }
    Repeater {
        model: root.bar

        BarItemView {
            origin: root.bar.frame.x
            glides: root.bar.isRearranging
            visible: root.bar.isShowing
        }
    }
    RoundedShape {
        visible: root.bar.hasNotch
        x: root.bar.notchLeft - root.bar.frame.x
        y: -20
        width: root.bar.notchRight - root.bar.notchLeft
        height: root.height + 20
        radius: 10
        color: "black"
    }
}
