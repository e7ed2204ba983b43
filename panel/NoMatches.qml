pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Panel
import Brimshade.Ui

// The sentence shown instead of the tiles. A long query is cut, so that the sentence's own end still shows.
StyledText {
    id: root

    required property string query
    required property PanelState panelState

    visible: text !== "" && root.panelState.body === PanelState.Tiles
    text: root.panelState.sentence === "" ? "" : root.panelState.sentenceNaming(shownQuery.elidedText)
    size: 12
    font.weight: Font.Medium
    color: Qt.rgba(1, 1, 1, 0.5)
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignVCenter
    Accessible.name: root.panelState.sentence

    TextMetrics {
        id: around
        font: root.font
        text: root.panelState.sentence === "" ? "" : root.panelState.sentenceNaming("")
    }
    TextMetrics {
        id: shownQuery
        font: root.font
        text: root.query.replace(/[^\S ]/g, " ") // a tab would be as wide as a column
        elide: Qt.ElideRight
        elideWidth: Math.max(0, root.width - around.advanceWidth - 2)
    }
}
