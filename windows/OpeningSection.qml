pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

SettingsSection {
    id: root

    required property NotchModel model
    required property Item layer

    title: qsTr("Opening")

    SettingsRow {
        first: true
        label: qsTr("Open when the pointer rests on the notch")

        Switch {
            objectName: "hoverSwitch"
            text: qsTr("Open when the pointer rests on the notch")
            value: root.model.hoverToOpen
            onValueRequested: value => root.model.hoverToOpen = value
        }
    }
    SettingsRow {
        label: qsTr("Keyboard shortcut")

        Picker {
            objectName: "shortcutPicker"
            text: qsTr("Keyboard shortcut")
            titles: shortcut.titles
            currentIndex: shortcut.index
            layer: root.layer
            onChosen: index => shortcut.choose(index)

            ShortcutChoice {
                id: shortcut
                model: root.model
            }
        }
    }
}
