pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Model

// What the buttons and the wheel of the mouse do over a tile.
MouseArea {
    id: root

    required property TileActions actions
    required property string extraID
    required property bool takesWheel

    acceptedButtons: Qt.LeftButton | Qt.RightButton | Qt.MiddleButton
    onClicked: mouse => {
        if (mouse.button === Qt.RightButton)
            root.actions.showMenu(root.extraID);
        else if (mouse.button === Qt.MiddleButton)
            root.actions.activateSecondary(root.extraID);
        else
            root.actions.open(root.extraID);
    }
    onWheel: wheel => {
        wheel.accepted = root.takesWheel;
        if (root.takesWheel)
            root.actions.scroll(root.extraID, wheel.angleDelta);
    }
}
