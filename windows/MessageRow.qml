pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

Item {
    id: root

    required property string message

    signal dismissed

    width: parent?.width ?? 0
    height: Math.max(text.height, dismiss.height) + 20

    SymbolIcon {
        id: warning
        x: Theme.formInset
        y: 10 + (16 - height) / 2
        name: "exclamationmark.triangle.fill"
        pointSize: 13
        color: Theme.lightOrange
    }
    StyledText {
        id: text
        objectName: "messageText"
        anchors.left: warning.right
        anchors.leftMargin: 8
        anchors.right: dismiss.left
        anchors.rightMargin: Theme.formInset
        y: 10
        text: root.message
        color: root.palette.windowText
        wrapMode: Text.Wrap
    }
    PushButton {
        id: dismiss
        objectName: "dismissButton"
        anchors.right: parent.right
        anchors.rightMargin: Theme.formInset
        y: 6
        text: qsTr("Dismiss")
        onClicked: root.dismissed()
    }
}
