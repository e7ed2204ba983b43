pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// The ring around the control that has the keyboard. It lies outside the item it fills.
RoundedShape {
    id: root

    property real cornerRadius: 6

    anchors.fill: parent
    anchors.margins: -3
    radius: root.cornerRadius + 3
    continuous: false
    strokeWidth: 3
    strokeColor: Qt.alpha(root.palette.highlight, 0.6)
}
