pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui
import Brimshade.Windows

// Where the menu bar is and which notch it has: shown where the menu bar is this program's.
SettingsSection {
    id: root

    required property MenuBarChoices choices
    required property Item surface

    title: qsTr("Menu Bar")
    footer: root.choices.advice

    SettingsRow {
        first: true
        label: qsTr("Screen")

        Picker {
            objectName: "screenPicker"
            width: 200
            text: qsTr("Screen")
            titles: root.choices.screens
            index: root.choices.screen
            surface: root.surface
            onChosen: index => root.choices.chooseScreen(index)
        }
    }
    SettingsRow {
        label: qsTr("Notch")

        Picker {
            objectName: "notchPicker"
            width: 200
            text: qsTr("Notch")
            titles: root.choices.notches
            index: root.choices.notch
            surface: root.surface
            onChosen: index => root.choices.chooseNotch(index)
        }
    }
    SettingsRow {
        visible: root.choices.hasWidth
        label: qsTr("Width of the notch")

        Picker {
            objectName: "notchWidthPicker"
            text: qsTr("Width of the notch")
            titles: root.choices.widths
            index: root.choices.width
            surface: root.surface
            onChosen: index => root.choices.chooseWidth(index)
        }
    }
}
