pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brimshade.Ui

// The white call to action. The view that holds it presses it on Return, wherever the keyboard is.
T.AbstractButton {
    id: control

    implicitWidth: implicitContentWidth
    implicitHeight: implicitContentHeight
    Accessible.role: Accessible.Button
    Accessible.name: control.text
    Accessible.onPressAction: control.clicked()

    PressStyle {
        id: press
        pressed: control.down
    }

    background: RoundedShape {
        scale: press.value
        radius: height / 2
        continuous: false
        color: "white"

        FocusRing {
            visible: control.visualFocus
            cornerRadius: parent.height / 2
        }
    }
    contentItem: StyledText {
        scale: press.value
        leftPadding: 22
        rightPadding: 22
        topPadding: 9
        bottomPadding: 9
        text: control.text
        size: 13
        font.weight: Font.DemiBold
        color: "black"
        Accessible.ignored: true
    }
}
