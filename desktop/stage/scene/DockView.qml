pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Stage
import Brimshade.Ui

// The running applications' icons at the foot of the screen. Decoration only: applications are opened elsewhere.
Item {
    id: root

    required property var images
    required property size whole // of the screen

    width: row.width + 20
    height: 66

    Shadow {
        anchors.fill: parent
        anchors.topMargin: 6
        anchors.bottomMargin: -6
        radius: 20
        blur: 12
        color: Qt.rgba(0, 0, 0, 0.3)
    }
    FrostedWallpaper {
        anchors.fill: parent
        whole: root.whole
        origin: Qt.point(root.x, root.y)
        radius: 20
    }
    RoundedShape {
        anchors.fill: parent
        radius: 20
        color: Qt.rgba(1, 1, 1, 0.2)
        strokeColor: Qt.rgba(1, 1, 1, 0.22)
        strokeWidth: 0.5
    }
    Row {
        id: row
        x: 10
        anchors.verticalCenter: parent.verticalCenter
        spacing: 6

        Repeater {
            model: root.images

            Item {
                id: place
                required property var modelData

                width: 50
                height: 54

                ImageView {
                    y: 1
                    width: 50
                    height: 50
                    image: place.modelData
                }
                RoundedShape {
                    anchors.horizontalCenter: parent.horizontalCenter
                    y: 54
                    width: 4
                    height: 4
                    radius: 2
                    continuous: false
                    color: Qt.rgba(1, 1, 1, 0.8)
                }
            }
        }
    }
}
