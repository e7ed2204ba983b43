pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Model
import Brimshade.Panel
import Brimshade.Ui

// The two sections in a view that scrolls when they need more room than there is.
Item {
    id: root

    required property NotchModel model
    required property TileActions actions
    required property PanelState panelState
    required property PanelGeometry geometry
    required property bool presented

    readonly property bool overflows: root.geometry.contentHeight > root.geometry.viewportHeight

    function scrollTo(position: real) {
        scroll.target = root.geometry.clampedScroll(position);
    }

    clip: root.overflows
    height: root.geometry.viewportHeight

    SpringValue {
        id: scroll
        animated: root.presented
        response: 0.22
        damping: 1
    }
    Connections {
        target: root.model

        function onSelectedIDChanged() {
            root.scrollTo(root.geometry.scrollShowing(root.model.selectedID, scroll.target));
        }
        function onMatchesChanged() {
            root.scrollTo(root.geometry.scrollShowing(root.model.selectedID, scroll.target));
        }
    }
    WheelHandler {
        enabled: root.overflows
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        target: null
        onWheel: event => {
            const step = event.pixelDelta.y !== 0 ? event.pixelDelta.y : event.angleDelta.y / 120 * 60;
            root.scrollTo(scroll.target - step);
        }
    }
    Item {
        objectName: "scrolled"
        y: -scroll.value
        width: parent.width

        TileSection {
            objectName: "hiddenSection"
            y: root.geometry.hiddenSectionY
            visible: root.model.hiddenMatchCount > 0
            title: qsTr("Behind the notch")
            section: TilesModel.BehindTheNotch
            startIndex: 0
            model: root.model
            actions: root.actions
            panelState: root.panelState
            presented: root.presented
            viewTop: scroll.value - y
            viewBottom: viewTop + root.geometry.viewportHeight
        }
        TileSection {
            objectName: "visibleSection"
            y: place.value
            visible: root.model.visibleMatchCount > 0
            title: qsTr("In the menu bar")
            section: TilesModel.InTheMenuBar
            startIndex: root.model.hiddenMatchCount
            model: root.model
            actions: root.actions
            panelState: root.panelState
            presented: root.presented
            viewTop: scroll.value - root.geometry.visibleSectionY
            viewBottom: viewTop + root.geometry.viewportHeight

            Glide {
                id: place
                target: root.geometry.visibleSectionY
                animated: root.presented
            }
        }
        NoMatches {
            objectName: "noMatches"
            y: root.geometry.hiddenSectionY
            width: parent.width
            height: PanelMetrics.sentenceHeight
            query: root.model.query
            panelState: root.panelState
        }
    }
    RoundedShape {
        objectName: "fade" // more below
        visible: root.overflows
        opacity: Theme.fadeOpacity(root.geometry.contentHeight - root.geometry.viewportHeight - scroll.value)
        y: root.height - height
        width: parent.width
        height: Theme.fadeHeight
        gradient: RoundedShape.Vertical
        color: Qt.rgba(0, 0, 0, 0)
        endColor: "black"
    }
    RoundedShape {
        objectName: "scroller"
        visible: root.overflows
        anchors.right: parent.right // in the free space beside the last column's faces
        y: scroll.value / (root.geometry.contentHeight - root.geometry.viewportHeight) * (root.height - height)
        width: 3
        height: Math.max(28, Math.round(root.height * root.height / root.geometry.contentHeight))
        radius: 1.5
        color: Qt.rgba(1, 1, 1, 0.22)
    }
}
