pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// The body of a window: rounded, with a hairline around it and a shadow that is deeper for the active one.
Item {
    id: root

    property color color: Theme.lightWindow
    property real radius: Theme.windowRadius
    property bool isActive: true
    property bool hasShadow: true
    property bool isDark: false

    Shadow {
        visible: root.hasShadow
        anchors.fill: parent
        anchors.topMargin: root.isActive ? 16 : 8
        anchors.bottomMargin: root.isActive ? -16 : -8
        radius: root.radius
        blur: root.isActive ? 22 : 13
        color: Qt.rgba(0, 0, 0, root.isActive ? 0.42 : 0.28)
    }
    RoundedShape {
        anchors.fill: parent
        anchors.margins: -0.5
        radius: root.radius + 0.5
        color: Qt.rgba(0, 0, 0, root.isDark ? 0.6 : 0.28)
    }
    RoundedShape {
        anchors.fill: parent
        radius: root.radius
        color: root.color
    }
}
