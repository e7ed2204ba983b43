pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brimshade.Ui

// A window's title and its three buttons, of which only the first does something here.
Item {
    id: root

    property string title
    property string windowName
    property bool isActive: true
    property bool isClosable: true
    property bool isDark: false

    signal closeRequested

    height: 28

    component Light: Item {
        id: light
        property color color
        property bool isLit: true

        width: 12
        height: 12

        RoundedShape {
            anchors.fill: parent
            radius: 6
            continuous: false
            color: light.isLit ? light.color : root.isDark ? "#4b4b50" : "#d3d3d6"
            strokeColor: Qt.rgba(0, 0, 0, 0.12)
            strokeWidth: 0.5
        }
    }

    Row {
        x: 10
        anchors.verticalCenter: parent.verticalCenter
        spacing: 8

        T.Button {
            id: close
            objectName: root.windowName + "Close"
            width: 12
            height: 12
            enabled: root.isClosable
            focusPolicy: Qt.NoFocus
            onClicked: root.closeRequested()
            Accessible.role: Accessible.Button
            Accessible.name: qsTr("Close")

            background: Light {
                color: close.down ? "#bf4943" : "#ff5f57"
                isLit: root.isClosable && (root.isActive || close.hovered)

                SymbolIcon {
                    visible: close.hovered && close.enabled
                    anchors.centerIn: parent
                    name: "xmark"
                    pointSize: 7
                    weight: SymbolIcon.Bold
                    color: Qt.rgba(0.3, 0, 0, 0.75)
                }
            }
        }
        Light {
            color: "#febc2e"
            isLit: false
        }
        Light {
            color: "#28c840"
            isLit: false
        }
    }
    StyledText {
        visible: root.title !== ""
        anchors.centerIn: parent
        width: Math.min(implicitWidth, root.width - 160)
        elide: Text.ElideRight
        text: root.title
        size: 13
        font.weight: Font.DemiBold
        color: root.isDark ? Qt.rgba(1, 1, 1, root.isActive ? 0.85 : 0.4) : Qt.rgba(0, 0, 0, root.isActive ? 0.8 : 0.35)
    }
}
