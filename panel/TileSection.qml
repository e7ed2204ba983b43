pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Model
import Brimshade.Panel
import Brimshade.Ui

// A title and its grid, of which only the rows in view exist. Both are placed in the panel, not in this item: what
// stays glides, what leaves stays where it is.
Item {
    id: root

    required property NotchModel model
    required property TileActions actions
    required property HelpTip helpTip
    required property PanelState panelState
    required property string title
    required property int section
    required property int startIndex
    required property int count
    required property bool takesWheel
    required property bool presented // on screen: movement is animated
    required property real gridLeft // from the middle
    required property real sectionTop
    required property real viewTop // what is in view
    required property real viewBottom
    readonly property real gridTop: root.sectionTop + PanelMetrics.sectionTitleHeight

    SectionTitle {
        objectName: root.objectName + "Title"
        title: root.title
        shown: root.count > 0
        presented: root.presented
        gridLeft: root.gridLeft
        sectionTop: root.sectionTop
    }
    Repeater {
        model: TilesModel {
            id: tiles
            source: root.model
            section: root.section
            viewTop: root.viewTop - root.gridTop
            viewBottom: root.viewBottom - root.gridTop
            isPaced: root.panelState.isPaced
            isUnseen: root.panelState.isUnseen
            keepsLeaving: root.presented
        }
        delegate: Tile {
            id: tile

            required property int position
            readonly property int columns: root.model.columns

            objectName: "tile"
            x: root.width / 2 + across.value
            y: down.value
            index: root.startIndex + tile.position
            actions: root.actions
            helpTip: root.helpTip
            open: root.presented && root.model.isOpen
            takesWheel: root.takesWheel
            highlighted: root.panelState.highlightedID === tile.extraID
            onGone: tiles.drop(tile.extraID)

            Glide {
                id: across
                target: root.gridLeft + tile.position % tile.columns * PanelMetrics.columnPitch
                animated: root.presented
                held: tile.isLeaving
            }
            Glide {
                id: down
                target: root.gridTop + Math.floor(tile.position / tile.columns) * PanelMetrics.rowPitch
                animated: root.presented
                held: tile.isLeaving
            }
        }
    }
}
