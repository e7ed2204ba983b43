pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Model
import Brimshade.Ui
import Brimshade.Windows

SettingsSection {
    id: root

    required property NotchModel model

    title: qsTr("Menu bar items")
    footer: qsTr("When on, the Brimshade icon widens up to the notch and everything to its left is tucked away into the notch. Switching an item does a quick Cmd-drag across the Brimshade icon for you, so the pointer jumps for a moment. You can also Cmd-drag items across it yourself.")

    SwitchRow {
        first: true
        name: "dividerSwitch"
        label: qsTr("Tuck away items left of Brimshade")
        value: root.model.dividerEnabled
        onValueRequested: value => root.model.dividerEnabled = value
    }
    Repeater {
        model: ItemRows {
            id: items
            model: root.model
        }

        ItemRow {
            id: row
            onMoveRequested: toMenuBar => items.setInMenuBar(row.extraID, toMenuBar)
        }
    }
    SettingsRow {
        visible: root.model.itemCount === 0

        StyledText {
            objectName: "noItemsText"
            width: root.width - 2 * Theme.formInset
            text: root.model.trusted ? qsTr("Reading your menu bar…") : qsTr("Allow Accessibility access to manage your menu bar.")
            color: Theme.secondary(root.palette.windowText)
            wrapMode: Text.WordWrap
        }
    }
}
