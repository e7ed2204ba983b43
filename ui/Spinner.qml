pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// Eight fading spokes that turn in steps, as long as they can be seen.
Item {
    id: root

    property color color: "white"
    readonly property bool turning: root.visible && root.opacity > 0

    implicitWidth: 16
    implicitHeight: 16
    Accessible.role: Accessible.ProgressBar
    Accessible.name: qsTr("Working")

    Item {
        id: wheel
        objectName: "spinnerWheel"
        property int phase

        anchors.centerIn: parent
        width: 16
        height: 16
        rotation: wheel.phase * 45

        NumberAnimation on phase {
            from: 0
            to: 8
            duration: 800
            loops: Animation.Infinite
            running: root.turning
        }

        Repeater {
            model: 8

            Item {
                id: spoke
                required property int index

                anchors.centerIn: parent
                width: 16
                height: 16
                rotation: spoke.index * 45
                opacity: 0.16 + 0.84 * Math.pow(spoke.index / 7, 1.4)

                RoundedShape {
                    x: 7
                    y: 1
                    width: 2
                    height: 4.6
                    radius: 1
                    continuous: false
                    color: root.color
                }
            }
        }
    }
}
