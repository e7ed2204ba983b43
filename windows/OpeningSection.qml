pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Model
import Brimshade.Ui
import Brimshade.Windows

SettingsSection {
    id: root

    required property NotchModel model
    required property Item surface
    property string shortcutAdvice // where the user has to do something for the shortcut

    title: qsTr("Opening")
    footer: root.shortcutAdvice

    SwitchRow {
        first: true
        name: "hoverSwitch"
        label: qsTr("Open when the pointer rests on the notch")
        value: root.model.hoverToOpen
        onValueRequested: value => root.model.hoverToOpen = value
    }
    SettingsRow {
        label: qsTr("Keyboard shortcut")

        Picker {
            objectName: "shortcutPicker"
            text: qsTr("Keyboard shortcut")
            titles: shortcut.titles
            index: shortcut.index
            surface: root.surface
            onChosen: index => shortcut.choose(index)

            ShortcutChoice {
                id: shortcut
                model: root.model
            }
        }
    }
}
