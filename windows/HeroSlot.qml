pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

Item {
    id: root

    required property int index
    required property var image // null where there is no icon for the slot
    required property color tint
    required property bool open

    implicitWidth: 44
    implicitHeight: 44
    scale: 0.4 + 0.6 * pop.value
    opacity: pop.clamped

    SpringValue {
        id: pop
        target: root.open ? 1 : 0
        response: 0.5
        damping: 0.7
        delay: root.open ? 0.15 + 0.06 * root.index : 0
    }
    ImageView {
        id: picture
        anchors.fill: parent
        image: root.image
        opacity: pop.clamped
    }
    RoundedShape {
        id: placeholder
        anchors.fill: parent
        visible: picture.isNull
        radius: 10
        gradient: RoundedShape.Diagonal
        color: root.tint
        endColor: Qt.rgba(1, 1, 1, 0.3)
        opacity: pop.clamped
    }
    Blurred {
        anchors.fill: parent
        visible: pop.clamped < 1
        opacity: 1 - pop.clamped
        source: picture.isNull ? placeholder : picture
        radius: 6
    }
}
