pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// What lies over a tile's icon. As large as the icon; the dots stand beyond its corners.
Item {
    id: root

    required property var overlay
    required property real overlaySharpness
    required property bool wantsAttention
    required property bool isHidden

    width: 36
    height: 36

    ImageView {
        objectName: "overlay"
        smooth: root.smooth
        anchors.fill: parent
        anchors.leftMargin: 18
        anchors.topMargin: 18
        visible: !isNull
        opacity: root.overlaySharpness
        image: root.overlay
    }
    RoundedShape {
        objectName: "attention"
        Accessible.role: Accessible.Indicator
        Accessible.name: qsTr("Wants attention")
        smooth: root.smooth
        anchors.centerIn: parent
        anchors.horizontalCenterOffset: -19
        anchors.verticalCenterOffset: -19
        visible: root.wantsAttention
        width: 7
        height: 7
        radius: 3.5
        color: Theme.pink
    }
    RoundedShape {
        objectName: "marker"
        smooth: root.smooth
        anchors.centerIn: parent
        anchors.horizontalCenterOffset: 19
        anchors.verticalCenterOffset: -19
        visible: root.isHidden
        width: 5
        height: 5
        radius: 2.5
        color: Qt.rgba(1, 0.62, 0.2, 1)
        glowRadius: 3
        glowColor: Theme.orange
    }
}
