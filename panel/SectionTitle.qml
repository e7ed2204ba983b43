pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Model
import Brimshade.Ui

// Says what the tiles under it are. Without tiles it fades out in its place.
StyledText {
    id: root

    required property string title
    required property bool shown
    required property bool presented
    required property real gridLeft // from the middle of its parent
    required property real sectionTop

    x: root.parent.width / 2 + across.value
    y: down.value
    // Half size, for 9.5 points: the toolkit rounds font sizes.
    scale: 0.5
    transformOrigin: Item.TopLeft
    size: 19
    height: 2 * PanelMetrics.sectionTitleHeight
    visible: root.shown || presence.running
    opacity: presence.value
    text: root.title.toUpperCase()
    font.weight: Font.Bold
    font.letterSpacing: 2.4
    color: Qt.rgba(1, 1, 1, 0.32)
    Accessible.description: root.title
    Accessible.ignored: !root.shown

    Glide {
        id: across
        target: root.gridLeft
        animated: root.presented && root.visible
        held: !root.shown
    }
    Glide {
        id: down
        target: root.sectionTop
        animated: root.presented && root.visible
        held: !root.shown
    }
    Fade {
        id: presence
        target: root.shown ? 1 : 0
        animated: root.presented
    }
}
