pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Desktop
import Brimshade.Stage
import Brimshade.Ui

// The system's page on which the permission is granted.
Item {
    id: root

    required property Permission permission

    objectName: "accessibilityPage"
    x: root.permission.pageFrame.x
    y: root.permission.pageFrame.y
    width: root.permission.pageFrame.width
    height: root.permission.pageFrame.height
    visible: root.permission.isPageOpen
    palette {
        highlight: "#34c759"
        dark: Theme.lightTrack
    }

    Accessible.role: Accessible.Window
    Accessible.name: qsTr("Accessibility")

    WindowPlate {
        anchors.fill: parent
        color: "#f2f1f5"
    }
    TitleBar {
        width: parent.width
        height: 38
        title: qsTr("Accessibility")
        windowName: "accessibilityPage"
        onCloseRequested: root.permission.closePage()
    }
    StyledText {
        x: 20
        y: 52
        width: parent.width - 40
        wrapMode: Text.WordWrap
        text: qsTr("Allow the applications below to control your computer.")
        size: 12
        color: Qt.rgba(0, 0, 0, 0.6)
    }
    RoundedShape {
        x: 20
        y: 84
        width: parent.width - 40
        height: 56
        radius: 10
        color: "white"
        strokeColor: Qt.rgba(0, 0, 0, 0.06)
        strokeWidth: 0.5
    }
    Item {
        x: 34
        y: 84
        width: parent.width - 68
        height: 56

        RoundedShape {
            anchors.verticalCenter: parent.verticalCenter
            width: 32
            height: 32
            radius: 8
            gradient: RoundedShape.Vertical
            color: "#3b3650"
            endColor: "#17141f"

            SymbolIcon {
                anchors.centerIn: parent
                name: "rectangle.topthird.inset.filled"
                pointSize: 16
                weight: SymbolIcon.Semibold
                color: "#ffb454"
            }
        }
        StyledText {
            x: 44
            anchors.verticalCenter: parent.verticalCenter
            text: "Brimshade"
            size: 13
            color: Qt.rgba(0, 0, 0, 0.87)
        }
        Switch {
            objectName: "permissionSwitch"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Allow Brimshade")
            value: root.permission.isTrusted
            focusPolicy: Qt.NoFocus
            onValueRequested: value => root.permission.isTrusted = value
        }
    }
}
