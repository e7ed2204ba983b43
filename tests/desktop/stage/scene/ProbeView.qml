pragma ComponentBehavior: Bound
import QtQuick

// A view that records what reaches it: two areas side by side, keys, and a mark that moves for 0.3 s.
FocusScope {
    id: root

    required property QtObject recorder
    property bool isMoved: false
    readonly property real mark: marker.x

    component Area: MouseArea {
        id: area
        property string name

        width: 100
        height: 100
        hoverEnabled: true
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onEntered: root.recorder.note("enter " + area.name)
        onExited: root.recorder.note("leave " + area.name)
        onPressed: mouse => root.recorder.note("press " + area.name + (mouse.button === Qt.RightButton ? " right" : ""))
        onReleased: root.recorder.note("release " + area.name)
    }

    Area {
        name: "a"
    }
    Area {
        x: 100
        name: "b"
    }
    Item {
        focus: true
        Keys.onPressed: event => root.recorder.note("key " + event.key + " " + event.text)
    }
    Rectangle {
        id: marker
        y: 120
        x: root.isMoved ? 100 : 0
        width: 10
        height: 10
        color: "#ff0000"

        Behavior on x {
            NumberAnimation {
                duration: 300
            }
        }
    }
}
