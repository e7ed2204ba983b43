pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Desktop
import Brimshade.Ui

// One open list of the menu. The menu controller handles pointer and keys.
Item {
    id: root

    required property MenuLevel level
    readonly property color plate: "#f4f2f6"

    objectName: "menu"
    x: root.level.frame.x
    y: root.level.frame.y
    width: root.level.frame.width
    height: root.level.frame.height
    visible: width > 0 && height > 0

    Accessible.role: Accessible.PopupMenu
    Accessible.name: qsTr("Menu")

    WindowPlate {
        anchors.fill: parent
        radius: 7
        color: root.plate
    }
    Item {
        id: list
        anchors.fill: parent
        anchors.topMargin: MenuMetrics.padding
        anchors.bottomMargin: MenuMetrics.padding
        clip: true

        Repeater {
            model: root.level

            MenuRow {
                y: offset - root.level.scroll - list.y
                width: list.width
                isCurrent: row === root.level.current
                textColumn: root.level.textColumn
                iconColumn: root.level.iconColumn
            }
        }
    }

    component Chevron: Rectangle {
        id: chevron
        property bool pointsUp: false

        x: MenuMetrics.sideInset
        width: root.width - 2 * x
        height: 18
        color: root.plate

        SymbolIcon {
            anchors.centerIn: parent
            name: "chevron.down"
            rotation: chevron.pointsUp ? 180 : 0
            pointSize: 10
            weight: SymbolIcon.Bold
            color: Qt.rgba(0, 0, 0, 0.6)
        }
    }

    Chevron {
        visible: root.level.canScrollUp
        y: 4
        pointsUp: true
    }
    Chevron {
        visible: root.level.canScrollDown
        y: root.height - height - 4
    }
}
