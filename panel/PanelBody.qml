pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Model
import Brimshade.Panel
import Brimshade.Ui

// Under the header: the permission card, the recorder of a shortcut, a spinner, a sentence, or the sections.
Item {
    id: root

    required property NotchModel model
    required property TileActions actions
    required property HelpTip helpTip
    required property PermissionRequest permission
    required property ShortcutRecorder recorder
    required property PanelState panelState
    required property PanelGeometry geometry
    required property bool presented
    readonly property bool overflows: sections.visible && sections.overflows
    readonly property real scrollPosition: sections.scrollPosition

    PermissionCard {
        objectName: "permissionCard"
        visible: root.panelState.body === PanelState.Permission
        width: parent.width
        permission: root.permission
    }
    Repeater {
        model: root.panelState.body === PanelState.Recorder ? 1 : 0

        ShortcutCard {
            objectName: "shortcutCard"
            width: root.width
            recorder: root.recorder
        }
    }
    Spinner {
        objectName: "spinner"
        anchors.horizontalCenter: parent.horizontalCenter
        y: (PanelMetrics.waitingHeight - height) / 2
        visible: root.presented && root.panelState.body === PanelState.Waiting
        color: "white"
    }
    StyledText {
        objectName: "noItems"
        visible: root.panelState.body === PanelState.NoItems
        width: parent.width
        height: PanelMetrics.waitingHeight
        text: root.panelState.sentence
        size: 12
        font.weight: Font.Medium
        color: Qt.rgba(1, 1, 1, 0.6)
        wrapMode: Text.WordWrap
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
    Sections {
        id: sections
        objectName: "sections"
        visible: root.panelState.body === PanelState.Tiles
        width: parent.width
        model: root.model
        actions: root.actions
        helpTip: root.helpTip
        panelState: root.panelState
        geometry: root.geometry
        presented: root.presented
    }
}
