pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui
import Brimshade.Windows

// A row of the form whose control is a switch.
SettingsRow {
    id: root

    required property string name // of the switch
    required property bool value

    signal valueRequested(bool value)

    Switch {
        objectName: root.name
        text: root.label
        value: root.value
        onValueRequested: value => root.valueRequested(value)
    }
}
