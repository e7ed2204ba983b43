pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// As round as the window: black with a warm glow from the top and a violet one from the lower right.
RoundedShape {
    id: root

    radius: Theme.windowRadius
    color: "black"

    RoundedShape {
        anchors.fill: parent
        radius: root.radius
        gradient: RoundedShape.Radial
        center: Qt.point(0.5, 0.05)
        startRadius: 10
        endRadius: 420
        color: Qt.rgba(1, 0.45, 0.2, 0.35)
        endColor: Qt.rgba(1, 0.45, 0.2, 0)
    }
    RoundedShape {
        anchors.fill: parent
        radius: root.radius
        gradient: RoundedShape.Radial
        center: Qt.point(0.9, 1)
        startRadius: 10
        endRadius: 380
        color: Qt.rgba(0.55, 0.35, 1, 0.22)
        endColor: Qt.rgba(0.55, 0.35, 1, 0)
    }
}
