pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brimshade.Ui

// A switch that shows a value owned elsewhere: valueRequested asks for a change, which shows once the value follows.
// Its text is its name to assistive programs; it is not drawn.
T.Switch {
    id: control

    property bool value: false
    property bool small: false

    signal valueRequested(bool value)

    implicitWidth: control.small ? 32 : 38
    implicitHeight: control.small ? 18 : 22
    checked: control.value
    onToggled: {
        const wanted = control.checked;
        control.checked = Qt.binding(() => control.value);
        control.valueRequested(wanted);
    }

    Accessible.role: Accessible.CheckBox
    Accessible.name: control.text
    Accessible.checkable: true
    Accessible.checked: control.checked
    Accessible.readOnly: !control.enabled
    Accessible.onPressAction: control.valueRequested(!control.value)
    Accessible.onToggleAction: control.valueRequested(!control.value)

    SpringValue {
        id: slide
        target: control.visualPosition
        curve: SpringValue.EaseInOut
        duration: control.down ? 0 : 0.16
    }

    indicator: Item {
        width: control.width
        height: control.height

        // Dimmed on its own: under a dimmed knob it would show through.
        Item {
            anchors.fill: parent
            opacity: Theme.presence(control)

            RoundedShape {
                anchors.fill: parent
                radius: height / 2
                continuous: false
                color: control.palette.dark
            }
            RoundedShape {
                anchors.fill: parent
                radius: height / 2
                continuous: false
                color: control.palette.highlight
                opacity: slide.value
            }
        }
        ControlShadow {
            anchors.fill: knob
            radius: knob.radius
            color: Qt.rgba(0, 0, 0, 0.3)
        }
        RoundedShape {
            id: knob
            x: 2 + slide.value * (parent.width - width - 4)
            y: 2
            width: height
            height: parent.height - 4
            radius: height / 2
            continuous: false
            color: !control.enabled ? "#ececee" : control.down ? "#f0f0f0" : "#ffffff"
        }
        FocusRing {
            visible: control.visualFocus
            cornerRadius: control.height / 2
        }
    }
}
