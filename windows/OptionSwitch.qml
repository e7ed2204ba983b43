pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui
import Brimshade.Windows

// A preference that is on or off.
OptionRow {
    id: root

    required property string name // of the switch
    required property bool value

    signal valueRequested(bool value)

    Switch {
        objectName: root.name
        text: root.title
        value: root.value
        Accessible.description: root.subtitle
        onValueRequested: value => root.valueRequested(value)
    }
}
