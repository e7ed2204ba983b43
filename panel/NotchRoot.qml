pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Model
import Brimshade.Notch
import Brimshade.Panel
import Brimshade.Ui

// The whole panel: a black tab that hangs from the top edge, as large as the notch when closed, in an empty area that
// takes the click that closes it.
Item {
    id: root

    required property NotchModel model
    required property TileActions actions
    required property PermissionRequest permission
    required property ShortcutRecorder recorder

    readonly property bool open: root.model.isOpen
    // From the beginning of the opening to the end of the closing. At other times nothing moves or is read out.
    readonly property bool presented: root.open || openness.running || root.rehearsing

    // For a host whose window is smaller than this item: the area that takes clicks when open, the one that does now,
    // and how far shadow and springs reach beyond it.
    readonly property rect openArea: Qt.rect((root.width - geometry.openSize.width) / 2 + 14, 0,
                                             geometry.openSize.width - 28, geometry.openSize.height)
    readonly property rect hitArea: root.open ? root.openArea : Qt.rect(0, 0, 0, 0)
    readonly property real hitRadius: 32 // of its lower corners
    readonly property real drawnMargin: 64

    // For a host whose window waits for frames. Paced: tiles come a few at a time; unseen: the tab is drawn alone, its
    // content comes with the next frame; rehearsing: one of everything is drawn out of sight, ahead of the first opening.
    property bool paced: false
    property bool unseen: false
    property bool rehearsing: false
    readonly property HelpTip tip: helpTip

    implicitWidth: 1000
    implicitHeight: 720
    focus: true
    Keys.onMenuPressed: content.showMenu()
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_F10 && event.modifiers === Qt.ShiftModifier;
        if (event.accepted)
            content.showMenu();
    }

    PanelState {
        id: panelState
        source: root.model
        isPaced: root.paced
        isUnseen: root.unseen
    }
    PanelGeometry {
        id: geometry
        source: root.model
        limit: root.height - 64 // leaves room for the shadow
    }
    SpringValue {
        id: openness
        target: root.open ? 1 : 0
        response: root.open ? 0.46 : 0.32
        damping: root.open ? 0.74 : 0.92
    }
    Glide {
        id: openWidth
        target: geometry.openSize.width
        animated: root.presented
    }
    Glide {
        id: openHeight
        target: geometry.openSize.height
        animated: root.presented
    }

    MouseArea {
        objectName: "panelBackground"
        anchors.fill: parent
        onClicked: panelState.dismiss()
    }
    NotchShadow {
        objectName: "panelShadow"
        x: tab.x
        y: 14
        width: tab.width
        height: tab.height
        visible: opacity > 0
        opacity: openness.clamped
        blur: 28
        color: Qt.rgba(0, 0, 0, 0.55)
    }
    NotchTab {
        id: tab
        objectName: "notchTab"
        closedSize: geometry.closedSize
        openSize: Qt.size(openWidth.value, openHeight.value)
        openness: openness.value
    }
    PanelContent {
        id: content
        anchors.fill: parent
        model: root.model
        actions: root.actions
        permission: root.permission
        recorder: root.recorder
        panelState: panelState
        geometry: geometry
        tab: tab
        helpTip: helpTip
        presented: root.presented && !root.unseen
        resizing: openWidth.running || openHeight.running
        shown: openness.clamped
    }
    HelpTip {
        id: helpTip
    }
    Repeater {
        model: root.rehearsing ? 1 : 0
        delegate: Tile {
            actions: root.actions
            helpTip: root.tip
            takesWheel: false
            open: false
            highlighted: true
            isNew: false
            isFirst: false
            isLeaving: false
            extraID: ""
            name: "Brimshade"
            detail: ""
            icon: undefined
            symbol: "app.dashed"
            tint: "gray"
            isHidden: true
        }
    }
}
