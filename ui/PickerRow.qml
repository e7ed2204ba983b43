pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

Item {
    id: root

    required property string title
    required property bool current
    required property bool highlighted

    signal entered
    signal chosen

    objectName: "pickerRow"
    implicitWidth: label.implicitWidth + 34
    Accessible.role: Accessible.ListItem
    Accessible.name: root.title
    Accessible.selectable: true
    Accessible.selected: root.current
    Accessible.onPressAction: root.chosen()

    RoundedShape {
        anchors.fill: parent
        radius: 5
        color: root.palette.highlight
        visible: root.highlighted
    }
    SymbolIcon {
        x: 5
        anchors.verticalCenter: parent.verticalCenter
        visible: root.current
        name: "checkmark"
        pointSize: 11
        weight: SymbolIcon.Semibold
        color: label.color
    }
    StyledText {
        id: label
        x: 22
        anchors.verticalCenter: parent.verticalCenter
        text: root.title
        color: root.highlighted ? "white" : root.palette.windowText
        Accessible.ignored: true
    }
    HoverHandler {
        onHoveredChanged: if (hovered)
            root.entered()
    }
    TapHandler {
        gesturePolicy: TapHandler.ReleaseWithinBounds
        onTapped: root.chosen()
    }
}
