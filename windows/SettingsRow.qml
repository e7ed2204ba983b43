pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// One row of the form: a label, and a control at its trailing end that carries the label as its own name. Without a
// label the control leads.
Item {
    id: root

    property string label
    property bool first: false
    default property Item control

    width: parent?.width ?? 0
    height: Math.max(40, text.height + 20)
    onControlChanged: root.control.parent = trailing

    Rectangle {
        visible: !root.first
        x: 12
        width: root.width - 24
        height: 0.5
        color: root.palette.mid
    }
    StyledText {
        id: text
        x: 12
        anchors.verticalCenter: parent.verticalCenter
        width: Math.max(0, trailing.x - 24)
        text: root.label
        color: root.palette.windowText
        wrapMode: Text.WordWrap
        Accessible.ignored: true
    }
    Item {
        id: trailing
        x: root.label === "" ? 12 : root.width - width - 12
        anchors.verticalCenter: parent.verticalCenter
        width: childrenRect.width
        height: childrenRect.height
    }
}
