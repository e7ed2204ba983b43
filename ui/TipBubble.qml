pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// A tooltip's text on its ground.
Item {
    id: root

    property string text

    width: Math.min(label.implicitWidth, 260) + 16
    height: label.height + 8

    Shadow {
        anchors.fill: parent
        anchors.topMargin: 2
        anchors.bottomMargin: -2
        radius: 5
        blur: 5
        color: Qt.rgba(0, 0, 0, 0.3)
    }
    RoundedShape {
        anchors.fill: parent
        radius: 5
        color: "#2c2c2e"
        strokeColor: Qt.rgba(1, 1, 1, 0.14)
        strokeWidth: 0.5
    }
    StyledText {
        id: label
        anchors.centerIn: parent
        width: Math.min(implicitWidth, 260)
        text: root.text
        size: 11
        wrapMode: Text.WordWrap
        Accessible.role: Accessible.ToolTip
    }
}
