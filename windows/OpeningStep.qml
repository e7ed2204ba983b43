pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Model
import Brimshade.Ui
import Brimshade.Windows

Item {
    id: root

    required property NotchModel model
    required property Item surface

    anchors.fill: parent

    ShortcutChoice {
        id: shortcut
        model: root.model
    }
    Column {
        anchors.centerIn: parent
        width: parent.width
        spacing: 26

        StepHeader {
            title: qsTr("How do you want to open it?")
            body: qsTr("The icon right of the notch always works. Add a shortcut or a hover if you like.")
        }
        Column {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(460, parent.width)
            spacing: 12

            OptionSwitch {
                name: "setupHoverSwitch"
                symbol: "cursorarrow.motionlines"
                title: qsTr("Hover the notch")
                subtitle: qsTr("Rest the pointer on the notch to open Brimshade")
                value: root.model.hoverToOpen
                onValueRequested: value => root.model.hoverToOpen = value
            }
            OptionRow {
                symbol: "command"
                title: qsTr("Keyboard shortcut")
                subtitle: qsTr("Open from anywhere")

                Picker {
                    objectName: "setupShortcutPicker"
                    width: 120
                    text: qsTr("Keyboard shortcut")
                    help: qsTr("Open from anywhere")
                    titles: shortcut.titles
                    index: shortcut.index
                    surface: root.surface
                    onChosen: index => shortcut.choose(index)
                }
            }
        }
    }
}
