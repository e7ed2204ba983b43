pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Model
import Brimshade.Notch
import Brimshade.Panel
import Brimshade.Ui

// What is in the tab, laid out for the open panel: what reaches beyond a smaller tab fades into its black.
Item {
    id: root

    required property NotchModel model
    required property TileActions actions
    required property PermissionRequest permission
    required property ShortcutRecorder recorder
    required property PanelState panelState
    required property PanelGeometry geometry
    required property NotchTab tab
    required property HelpTip helpTip
    required property bool presented
    required property bool resizing // to other items
    required property real shown // from 0, closed, to 1, open
    readonly property real bodyTop: root.model.notch.height
    readonly property real contentLeft: (root.width - contentWidth.value) / 2

    // Opens the highlighted tile's menu at that tile, wherever the pointer is.
    function showMenu() {
        const id = root.panelState.highlightedID;
        if (id === "" || root.panelState.body !== PanelState.Tiles)
            return;
        const face = root.geometry.faceCentre(id);
        root.actions.showMenuAt(id, Qt.point(root.width / 2 + face.x, root.bodyTop + face.y - body.scrollPosition));
    }

    // Items that come into an empty panel find it at its final width.
    Glide {
        id: contentWidth
        target: root.geometry.openSize.width - 2 * (PanelMetrics.openFlare + PanelMetrics.sidePadding)
        animated: root.presented && root.panelState.body === PanelState.Tiles
    }
    // While the tab cuts nothing it keeps one place, so that what is at rest in it is not drawn again.
    Item {
        id: interior

        readonly property bool cuts: !root.tab.holdsContent || root.resizing
        objectName: "interior"
        x: cuts ? root.tab.interior.x : root.contentLeft - PanelMetrics.sidePadding
        width: cuts ? root.tab.interior.width : contentWidth.value + 2 * PanelMetrics.sidePadding
        height: cuts ? root.tab.interior.height : root.geometry.openSize.height
        clip: true
        visible: root.presented

        Item {
            objectName: "content"
            x: root.contentLeft - parent.x
            width: contentWidth.value

            PanelHeader {
                objectName: "header"
                width: parent.width
                height: root.bodyTop
                model: root.model
                panelState: root.panelState
                helpTip: root.helpTip
            }
            PanelBody {
                id: body
                objectName: "body"
                y: root.bodyTop
                width: parent.width
                model: root.model
                actions: root.actions
                helpTip: root.helpTip
                permission: root.permission
                recorder: root.recorder
                panelState: root.panelState
                geometry: root.geometry
                presented: root.presented
            }
        }
        // It reaches a little beyond the clip, which lies between device pixels; the upper edge is the screen's.
        EdgeFade {
            visible: interior.cuts
            x: -1
            y: -PanelMetrics.sidePadding
            width: parent.width + 2
            height: parent.height - y + 1
            depth: 15
            radius: 7 // plus the depth: no more than the padding
        }
    }
    Scroller {
        objectName: "scroller"
        x: root.contentLeft + contentWidth.value + (PanelMetrics.sidePadding - width) / 2
        y: root.bodyTop
        height: root.geometry.viewportHeight
        visible: root.presented && body.overflows
        opacity: footer.opacity
        contentHeight: root.geometry.contentHeight
        position: body.scrollPosition
    }
    PanelFooter {
        id: footer
        x: root.contentLeft
        y: root.bodyTop + footerY.value
        width: contentWidth.value
        visible: root.presented && root.panelState.body === PanelState.Tiles
        // It is never cut: no part of it shows before the tab has room for it.
        opacity: root.shown * Math.max(0, Math.min(1, (root.tab.height - y - height + 2) / (PanelMetrics.bottomMargin + 2)))
        panelState: root.panelState
        animated: root.model.isOpen

        Glide {
            id: footerY
            target: root.geometry.footerY
            animated: root.presented && footer.visible
        }
    }
}
