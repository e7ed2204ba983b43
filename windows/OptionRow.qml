pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// A preference with a symbol and two lines. Its control carries both lines as its own name and description.
RoundedShape {
    id: root

    required property string symbol
    required property string title
    required property string subtitle
    default property Item control

    width: parent?.width ?? 0
    height: Math.max(36, texts.height, trailing.height) + 28
    radius: 14
    continuous: false
    color: Qt.rgba(1, 1, 1, 0.05)
    onControlChanged: root.control.parent = trailing

    RoundedShape {
        id: well
        x: 14
        anchors.verticalCenter: parent.verticalCenter
        width: 36
        height: 36
        radius: 10
        color: Qt.rgba(1, 1, 1, 0.08)

        SymbolIcon {
            anchors.centerIn: parent
            name: root.symbol
            pointSize: 16
            weight: SymbolIcon.Semibold
        }
    }
    Column {
        id: texts
        anchors.left: well.right
        anchors.leftMargin: 14
        anchors.right: trailing.left
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        StyledText {
            width: parent.width
            text: root.title
            size: 13
            font.weight: Font.DemiBold
            color: "white"
            wrapMode: Text.WordWrap
            Accessible.ignored: true
        }
        StyledText {
            width: parent.width
            text: root.subtitle
            size: 11
            color: Qt.rgba(1, 1, 1, 0.5)
            wrapMode: Text.WordWrap
            Accessible.ignored: true
        }
    }
    Item {
        id: trailing
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        width: childrenRect.width
        height: childrenRect.height
    }
}
