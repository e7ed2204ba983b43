pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Model
import Brimshade.Panel
import Brimshade.Ui

// A title and its grid, of which only the rows in view exist.
Item {
    id: root

    required property NotchModel model
    required property TileActions actions
    required property PanelState panelState
    required property string title
    required property int section
    required property int startIndex
    required property bool presented // on screen: whatever moves may be seen to move
    required property real viewTop // what of the section is in view, in its own coordinates
    required property real viewBottom

    StyledText {
        height: PanelMetrics.sectionTitleHeight
        text: root.title.toUpperCase()
        size: 9.5
        font.weight: Font.Bold
        font.letterSpacing: 1.2
        color: Qt.rgba(1, 1, 1, 0.32)
        Accessible.description: root.title
    }
    Repeater {
        model: TilesModel {
            source: root.model
            section: root.section
            viewTop: root.viewTop - PanelMetrics.sectionTitleHeight
            viewBottom: root.viewBottom - PanelMetrics.sectionTitleHeight
        }
        delegate: Tile {
            id: tile

            required property int position
            readonly property int columns: root.model.columns

            objectName: "tile"
            x: column.value * PanelMetrics.columnPitch
            y: PanelMetrics.sectionTitleHeight + row.value * PanelMetrics.rowPitch
            index: root.startIndex + tile.position
            actions: root.actions
            open: root.model.isOpen
            highlighted: root.panelState.highlightedID === tile.extraID

            Glide {
                id: column
                target: tile.position % tile.columns
                animated: root.presented
            }
            Glide {
                id: row
                target: Math.floor(tile.position / tile.columns)
                animated: root.presented
            }
        }
    }
}
