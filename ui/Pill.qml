pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// A short state with a coloured dot, on dark.
RoundedShape {
    id: root

    required property string text
    required property color dotColor

    implicitWidth: row.width + 28
    implicitHeight: row.height + 14
    radius: height / 2
    color: Qt.rgba(1, 1, 1, 0.08)

    Row {
        id: row
        anchors.centerIn: parent
        spacing: 8

        RoundedShape {
            anchors.verticalCenter: parent.verticalCenter
            width: 8
            height: 8
            radius: 4
            continuous: false
            color: root.dotColor
        }
        StyledText {
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            size: 12
            font.weight: Font.DemiBold
            color: "white"
        }
    }
}
