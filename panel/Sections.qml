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
    required property HelpTip helpTip
    required property PanelState panelState
    required property PanelGeometry geometry
    required property bool presented

    readonly property bool overflows: root.geometry.contentHeight > root.geometry.viewportHeight
    readonly property real scrollPosition: scroll.value

    component EdgeShade: RoundedShape {
        visible: root.overflows
        width: root.width
        height: Theme.fadeHeight
        gradient: RoundedShape.Vertical
    }

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
            width: parent.width
            title: qsTr("Behind the notch")
            section: TilesModel.BehindTheNotch
            startIndex: 0
            count: root.model.hiddenMatchCount
            model: root.model
            actions: root.actions
            helpTip: root.helpTip
            panelState: root.panelState
            takesWheel: !root.overflows
            presented: root.presented
            gridLeft: root.geometry.gridLeft
            sectionTop: root.geometry.hiddenSectionY
            viewTop: scroll.value
            viewBottom: scroll.value + root.geometry.viewportHeight
        }
        TileSection {
            objectName: "visibleSection"
            width: parent.width
            title: qsTr("In the menu bar")
            section: TilesModel.InTheMenuBar
            startIndex: root.model.hiddenMatchCount
            count: root.model.visibleMatchCount
            model: root.model
            actions: root.actions
            helpTip: root.helpTip
            panelState: root.panelState
            takesWheel: !root.overflows
            presented: root.presented
            gridLeft: root.geometry.gridLeft
            sectionTop: root.geometry.visibleSectionY
            viewTop: scroll.value
            viewBottom: scroll.value + root.geometry.viewportHeight
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
    EdgeShade {
        objectName: "upperFade"
        opacity: Theme.fadeOpacity(scroll.value)
        color: "black"
        endColor: Qt.rgba(0, 0, 0, 0)
    }
    EdgeShade {
        objectName: "fade" // more below
        opacity: Theme.fadeOpacity(root.geometry.contentHeight - root.geometry.viewportHeight - scroll.value)
        y: root.height - height
        color: Qt.rgba(0, 0, 0, 0)
        endColor: "black"
    }
}
