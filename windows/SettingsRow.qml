pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui
import Brimshade.Windows

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

    RowLine {
        visible: !root.first
    }
    StyledText {
        id: text
        x: Theme.formInset
        anchors.verticalCenter: parent.verticalCenter
        width: Math.max(0, trailing.x - 2 * Theme.formInset)
        text: root.label
        color: root.palette.windowText
        wrapMode: Text.WordWrap
        Accessible.ignored: true
    }
    Item {
        id: trailing
        x: root.label === "" ? Theme.formInset : root.width - width - Theme.formInset
        anchors.verticalCenter: parent.verticalCenter
        width: childrenRect.width
        height: childrenRect.height
    }
}
