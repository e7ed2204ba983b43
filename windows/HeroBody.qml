pragma ComponentBehavior: Bound
import QtQuick

// A black notch with round lower corners and a hairline around it. Cheap to resize.
Item {
    id: root

    required property real corner

    clip: true

    Rectangle {
        y: -root.corner
        width: root.width
        height: root.height + root.corner
        radius: root.corner
        color: "black"
        border.width: 1
        border.color: Qt.rgba(1, 1, 1, 0.12)
    }
    Rectangle {
        width: root.width
        height: 1
        color: Qt.rgba(1, 1, 1, 0.12)
    }
}
