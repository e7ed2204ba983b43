pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// Shows how much more there is, and where in it the view stands.
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
