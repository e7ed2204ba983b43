pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Model
import Brimshade.Ui
import Brimshade.Windows

Item {
    id: root

    required property NotchModel model
    required property OnboardingFlow flow
    required property HelpTip tip
    required property size view
    required property point place // of the step in the view

    anchors.fill: parent

    StepHeader {
        id: header
        anchors.top: parent.top
        title: qsTr("What stays in the menu bar?")
        body: qsTr("Lit items stay in the menu bar. Dimmed ones are tucked into the notch, one click away.")
    }
    StyledText {
        objectName: "noChoicesText"
        anchors.top: header.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        visible: root.model.itemCount === 0
        text: root.model.trusted ? qsTr("Reading your menu bar…") : qsTr("Allow Accessibility first to see your items.")
        color: Qt.rgba(1, 1, 1, 0.5)
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        wrapMode: Text.WordWrap
    }
    ScrollArea {
        id: scroll
        objectName: "choicesScroll"
        anchors.top: header.bottom
        anchors.topMargin: 18
        anchors.bottom: counts.top
        anchors.bottomMargin: 18
        width: parent.width
        visible: root.model.itemCount > 0
        contentWidth: width
        contentHeight: grid.height + 12

        Grid {
            id: grid
            x: (scroll.width - width) / 2
            y: 6
            width: 5 * 96 + 4 * 12
            columns: 5
            columnSpacing: 12
            rowSpacing: 14

            Repeater {
                model: root.flow.tiles

                ChoiceTile {
                    id: tile

                    required property string extraID

                    objectName: "choiceTile"
                    tip: root.tip
                    onToggleRequested: root.flow.toggle(tile.extraID)
                }
            }
        }
    }
    SetupBackdrop {
        objectName: "fade" // more below
        anchors.left: scroll.left
        anchors.right: scroll.right
        anchors.bottom: scroll.bottom
        height: Theme.fadeHeight
        visible: scroll.visible && opacity > 0
        opacity: Theme.fadeOpacity(scroll.contentHeight - scroll.height - scroll.contentY)
        whole: root.view
        origin: Qt.point(root.place.x + x, root.place.y + y)
        fadesIn: true
    }
    StyledText {
        id: counts
        objectName: "choiceCounts"
        anchors.bottom: parent.bottom
        width: parent.width
        visible: root.model.itemCount > 0
        text: qsTr("%1 in the menu bar  ·  %2 in the notch").arg(root.flow.stayCount).arg(root.flow.tuckedCount)
        size: 11
        font.weight: Font.DemiBold
        color: Qt.rgba(1, 1, 1, 0.45)
        horizontalAlignment: Text.AlignHCenter
    }
}
