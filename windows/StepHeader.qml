pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

Column {
    id: root

    required property string title
    required property string body

    anchors.horizontalCenter: parent?.horizontalCenter
    width: parent?.width ?? 0
    spacing: 8

    StyledText {
        objectName: "stepTitle"
        width: parent.width
        text: root.title
        size: 26
        font.weight: Font.Bold
        color: "white"
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        Accessible.role: Accessible.Heading
    }
    StyledText {
        objectName: "stepBody"
        width: parent.width
        text: root.body
        size: 13
        color: Qt.rgba(1, 1, 1, 0.55)
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
    }
}
