pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// Says how much more there is, and where what is in view stands in it.
Item {
    id: root

    required property real contentHeight
    required property real position

    width: 3

    RoundedShape {
        y: root.position / Math.max(1, root.contentHeight - root.height) * (root.height - height)
        width: parent.width
        height: Math.max(28, Math.round(root.height * root.height / Math.max(1, root.contentHeight)))
        radius: 1.5
        color: Qt.rgba(1, 1, 1, 0.22)
    }
}
