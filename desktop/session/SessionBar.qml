pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Desktop
import Brimshade.Session
import Brimshade.Ui

// The menu bar at the top edge of the session's screen: the focused application's name, the items, the notch.
Item {
    id: root

    required property BarState bar
    readonly property BarModel items: root.bar.items
    readonly property real nameEnd: root.items.hasNotch ? root.items.notchLeft - root.items.frame.x : root.items.menusEnd - root.items.frame.x

    Accessible.role: Accessible.MenuBar
    Accessible.name: qsTr("Menu bar")

    Rectangle {
        anchors.fill: parent
        color: Qt.rgba(0.11, 0.1, 0.15, root.bar.isTranslucent ? 0.84 : 1)
    }
    StyledText {
        objectName: "applicationName"
        x: root.bar.nameMargin
        width: Math.max(0, root.nameEnd - x - root.bar.nameMargin)
        anchors.verticalCenter: parent.verticalCenter
        elide: Text.ElideRight
        text: root.bar.applicationName
        size: 13
        font.weight: Font.Bold
        color: Theme.brightText
    }
    Repeater {
        model: root.items

        BarItemView {
            origin: root.items.frame.x
            glides: root.items.isRearranging
        }
    }
    RoundedShape {
        objectName: "notch"
        visible: root.items.hasNotch
        x: root.items.notchLeft - root.items.frame.x
        y: -20
        width: root.items.notchRight - root.items.notchLeft
        height: root.height + 20
        radius: 10
        color: "black"
    }
}
