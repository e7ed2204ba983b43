pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Stage

// What a screen shows behind everything: the wallpaper, and on the primary screen the other programs' quiet presence.
Item {
    id: root

    required property bool isPrimary
    required property real barHeight // 0 if there is none
    required property var images // of the dock

    clip: true

    Wallpaper {
        anchors.fill: parent
    }
    FrostedWallpaper {
        visible: root.barHeight > 0
        width: root.width
        height: root.barHeight
        whole: Qt.size(root.width, root.height)
    }
    DocumentWindow {
        visible: root.isPrimary && root.width >= 1000
        x: root.width * 0.075
        y: root.height * 0.31
    }
    DockView {
        visible: root.isPrimary
        whole: Qt.size(root.width, root.height)
        images: root.images
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 6
    }
}
