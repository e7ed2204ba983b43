pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brimshade.Ui
import Brimshade.Windows

// The white call to action. The view that holds it presses it on Return, wherever the keyboard is.
T.AbstractButton {
    id: control

    property string leavingText // fades out while the text that replaces it comes
    property string latestText

    component Label: StyledText {
        anchors.centerIn: parent
        size: 13
        font.weight: Font.DemiBold
        color: "black"
        Accessible.ignored: true
    }

    implicitWidth: implicitContentWidth
    implicitHeight: implicitContentHeight
    Accessible.role: Accessible.Button
    Accessible.name: control.text
    Accessible.onPressAction: control.clicked()

    onTextChanged: {
        control.leavingText = control.latestText;
        control.latestText = control.text;
        change.run(0, 1);
    }

    SpringValue {
        id: change
        target: 1
        curve: SpringValue.EaseOut
        duration: 0.2
    }
    StepSpring {
        id: across
        target: label.implicitWidth
    }
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
    contentItem: Item {
        scale: press.value
        implicitWidth: across.value + 44
        implicitHeight: label.implicitHeight + 18

        Label {
            id: label
            text: control.text
            opacity: change.value
        }
        Label {
            text: control.leavingText
            visible: change.running
            opacity: 1 - change.value
        }
    }
}
