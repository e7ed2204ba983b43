pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Model
import Brimshade.Panel
import Brimshade.Ui

// The whole panel: a black tab that hangs from the top edge, as large as the notch when closed, and around it nothing
// but what takes the click that closes it.
Item {
    id: root

    required property NotchModel model
    required property TileActions actions
    required property PermissionRequest permission

    readonly property bool open: root.model.isOpen
    // From the beginning of the opening to the end of the closing. At other times nothing moves or is read out.
    readonly property bool presented: root.open || openness.running

    // For whoever shows the panel in a window that is not as large as this: what takes clicks, nothing while it is
    // closed, and how far shadow and springs reach beyond it.
    readonly property rect hitArea: root.open
        ? Qt.rect((root.width - geometry.openSize.width) / 2 + 14, 0, geometry.openSize.width - 28, geometry.openSize.height)
        : Qt.rect(0, 0, 0, 0)
    readonly property real hitRadius: 32 // of its lower corners
    readonly property real drawnMargin: 64

    implicitWidth: 1000
    implicitHeight: 720
    focus: true
    Keys.onMenuPressed: {
        if (panelState.highlightedID !== "")
            root.actions.showMenu(panelState.highlightedID);
    }

    PanelState {
        id: panelState
        source: root.model
    }
    PanelGeometry {
        id: geometry
        source: root.model
        limit: root.height - 64 // leaves the shadow its room
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

    // Of what the tab has room for when the glides have ended; items that come into an empty panel find it so at once.
    Glide {
        id: contentWidth
        target: geometry.openSize.width - 2 * (PanelMetrics.openFlare + PanelMetrics.sidePadding)
        animated: root.presented && panelState.body === PanelState.Tiles
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
    Item {
        id: interior
        objectName: "interior"
        x: tab.interior.x
        width: tab.interior.width
        height: tab.interior.height
        clip: true
        visible: root.presented

        Item {
            id: content
            objectName: "content"
            x: (root.width - width) / 2 - parent.x
            width: contentWidth.value

            PanelHeader {
                objectName: "header"
                width: parent.width
                height: root.model.notch.height
                model: root.model
                panelState: panelState
                helpTip: helpTip
            }
            PanelBody {
                id: body
                objectName: "body"
                y: root.model.notch.height
                width: parent.width
                model: root.model
                actions: root.actions
                permission: root.permission
                panelState: panelState
                geometry: geometry
                presented: root.presented
            }
        }
        // What is laid out for the open panel goes on beyond a smaller one.
        EdgeFade {
            y: -PanelMetrics.sidePadding // the upper edge is the screen's
            width: parent.width
            height: parent.height - y
            depth: 14
            radius: 8 // and the depth: no more than the padding
        }
    }
    Scroller {
        objectName: "scroller"
        x: interior.x + content.x + content.width + (PanelMetrics.sidePadding - width) / 2
        y: root.model.notch.height
        height: geometry.viewportHeight
        visible: root.presented && body.overflows
        opacity: footer.opacity
        contentHeight: geometry.contentHeight
        position: body.scrollPosition
    }
    PanelFooter {
        id: footer
        x: (root.width - width) / 2
        y: root.model.notch.height + footerY.value
        width: contentWidth.value
        visible: root.presented && panelState.body === PanelState.Tiles
        // It is never cut: before the tab has room for it nothing of it is seen.
        opacity: openness.clamped * Math.max(0, Math.min(1, (tab.height - y - height + 2) / (PanelMetrics.bottomMargin + 2)))
        panelState: panelState
        animated: root.open

        Glide {
            id: footerY
            target: geometry.footerY
            animated: root.presented && footer.visible
        }
    }
    HelpTip {
        id: helpTip
    }
}
