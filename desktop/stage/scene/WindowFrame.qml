pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Desktop
import Brimshade.Stage
import Brimshade.Ui

// One of the program's windows: what the system draws around its content.
FocusScope {
    id: root

    required property WindowState hosted
    readonly property Item holder: content
    readonly property string brimshadeWindow: root.hosted.name
    readonly property color plateColor: root.hosted.isDark ? "#1e1e20" : Theme.lightWindow

    objectName: "window-" + root.hosted.name
    x: root.hosted.frame.x
    y: root.hosted.frame.y
    z: root.hosted.depth
    width: root.hosted.frame.width
    height: root.hosted.frame.height
    visible: root.hosted.isVisible

    Accessible.role: root.hosted.isPanel ? Accessible.Dialog : Accessible.Window
    Accessible.name: root.hosted.title === "" ? Application.displayName : root.hosted.title

    WindowPlate {
        visible: root.hosted.isTitled && root.hosted.isOpaque
        anchors.fill: parent
        color: root.plateColor
        isActive: root.hosted.isKey
        isDark: root.hosted.isDark
        hasShadow: root.hosted.hasShadow
    }
    MouseArea {
        id: background
        property point grip

        enabled: root.hosted.isMovable && root.hosted.isTitled
        anchors.fill: parent
        anchors.bottomMargin: root.hosted.isMovableByBackground ? 0 : parent.height - titleBar.height
        onPressed: mouse => background.grip = Qt.point(mouse.x, mouse.y)
        onPositionChanged: mouse => root.hosted.moveBy(mouse.x - background.grip.x, mouse.y - background.grip.y)
    }
    Item {
        id: content
        y: root.hosted.titleBarHeight
        width: root.width
        height: root.height - y
    }
    TitleBar {
        id: titleBar
        visible: root.hosted.isTitled
        width: root.width
        title: root.hosted.isTitleHidden ? "" : root.hosted.title
        windowName: root.hosted.name
        isActive: root.hosted.isKey
        isClosable: root.hosted.isClosable
        isDark: root.hosted.isDark
        onCloseRequested: root.hosted.close()
    }
}
