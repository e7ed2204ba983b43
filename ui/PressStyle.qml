pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// The scale of a button's label: smaller while it is pressed.
SpringValue {
    id: root

    required property bool pressed

    target: root.pressed ? 0.9 : 1
    response: 0.2
    damping: 0.6
}
