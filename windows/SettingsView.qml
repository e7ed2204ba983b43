pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Model
import Brimshade.Ui
import Brimshade.Windows

// The content of the settings window: every preference, and every menu bar item with its switch.
FocusScope {
    id: root

    required property NotchModel model
    property MenuBarChoices menuBar: null // where the menu bar is this program's

    implicitWidth: 480
    implicitHeight: 640
    focus: true
    palette {
        window: Theme.lightWindow
        base: "white"
        windowText: Theme.lightText
        button: "white"
        buttonText: Theme.lightText
        highlight: Theme.lightAccent
        dark: Theme.lightTrack
        mid: Qt.rgba(0, 0, 0, 0.12)
        midlight: Qt.rgba(0, 0, 0, 0.07)
    }

    SettingsActions {
        id: actions
        model: root.model
    }
    RoundedShape {
        anchors.fill: parent
        radius: Theme.windowRadius
        color: root.palette.window
    }
    // Under the title bar, once something has gone behind it.
    Line {
        objectName: "scrolledEdge"
        z: 1
        width: parent.width
        height: 0.5
        visible: scroll.contentY > 0
        color: root.palette.mid
    }
    ScrollArea {
        id: scroll
        objectName: "settingsScroll"
        anchors.fill: parent
        contentWidth: width
        contentHeight: form.height + 40

        Column {
            id: form
            x: 20
            y: 20
            width: scroll.width - 40
            spacing: 20

            SettingsSection {
                visible: root.model.message !== ""

                MessageRow {
                    message: root.model.message
                    onDismissed: root.model.message = ""
                }
            }
            ItemsSection {
                model: root.model
            }
            Repeater {
                model: root.menuBar ? 1 : 0

                MenuBarSection {
                    choices: root.menuBar
                    surface: root
                }
            }
            OpeningSection {
                model: root.model
                surface: root
                shortcutAdvice: root.menuBar?.shortcutAdvice ?? ""
            }
            SettingsSection {
                title: qsTr("Panel")

                SwitchRow {
                    first: true
                    name: "showVisibleSwitch"
                    label: qsTr("Also show items already in the menu bar")
                    value: root.model.showVisible
                    onValueRequested: value => root.model.showVisible = value
                }
            }
            SettingsSection {
                title: qsTr("General")

                SwitchRow {
                    first: true
                    name: "launchAtLoginSwitch"
                    label: qsTr("Launch at login")
                    value: root.model.launchAtLogin
                    onValueRequested: value => root.model.launchAtLogin = value
                }
                SettingsRow {
                    PushButton {
                        objectName: "runSetupButton"
                        text: qsTr("Run Setup Again…")
                        onClicked: actions.runSetupAgain()
                    }
                }
            }
        }
    }
}
