pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// The active application's menus at the left end of the bar. Decoration only: they do not open.
Row {
    id: root

    spacing: 19

    SymbolIcon {
        anchors.verticalCenter: parent.verticalCenter
        name: "circle.grid.2x2.fill"
        pointSize: 13
        weight: SymbolIcon.Semibold
        color: "white"
    }
    Repeater {
        model: ["Atelier", qsTr("File"), qsTr("Edit"), qsTr("View"), qsTr("Window"), qsTr("Help")]

        StyledText {
            required property string modelData
            required property int index

            anchors.verticalCenter: parent.verticalCenter
            text: modelData
            size: 13
            font.weight: index === 0 ? Font.Bold : Font.Medium
            color: Theme.brightText
        }
    }
}
