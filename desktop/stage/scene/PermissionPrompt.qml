pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Desktop
import Brimshade.Stage
import Brimshade.Ui

// The system asks whether the program may control this computer.
Item {
    id: root

    required property Permission permission

    objectName: "permissionPrompt"
    x: root.permission.promptFrame.x
    y: root.permission.promptFrame.y
    width: root.permission.promptFrame.width
    height: root.permission.promptFrame.height
    visible: root.permission.isPromptOpen
    palette {
        button: "white"
        buttonText: Theme.lightText
        highlight: Theme.lightAccent
    }

    Accessible.role: Accessible.AlertMessage
    Accessible.name: qsTr("Accessibility Access")

    WindowPlate {
        anchors.fill: parent
        radius: 12
        color: "#f4f3f6"
    }
    RoundedShape {
        x: 24
        y: 24
        width: 52
        height: 52
        radius: 13
        gradient: RoundedShape.Vertical
        color: "#3e9bff"
        endColor: "#0a62e0"

        SymbolIcon {
            anchors.centerIn: parent
            name: "accessibility"
            pointSize: 28
            weight: SymbolIcon.Semibold
            color: "white"
        }
    }
    StyledText {
        x: 94
        y: 24
        width: root.width - x - 24
        wrapMode: Text.WordWrap
        text: qsTr("“Brimshade” would like to control this computer using accessibility features.")
        size: 13
        font.weight: Font.DemiBold
        color: Qt.rgba(0, 0, 0, 0.88)
    }
    StyledText {
        x: 94
        y: 80
        width: root.width - x - 24
        wrapMode: Text.WordWrap
        text: qsTr("Grant access to this application in the Accessibility settings.")
        size: 12
        color: Qt.rgba(0, 0, 0, 0.62)
    }
    Row {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: 20
        spacing: 10

        PushButton {
            objectName: "promptDeny"
            text: qsTr("Deny")
            focusPolicy: Qt.NoFocus
            onClicked: root.permission.closePrompt()
        }
        PushButton {
            objectName: "promptOpenSettings"
            style: PushButton.Prominent
            text: qsTr("Open System Settings")
            focusPolicy: Qt.NoFocus
            onClicked: root.permission.openSettingsFromPrompt()
        }
    }
}
