pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Desktop
import Brimshade.Ui

// An application's message: slides in from the right, and out again.
Item {
    id: root

    required property string application
    required property string what
    required property var image
    required property bool isLeaving
    required property real rightEdge
    required property real topEdge

    objectName: "banner"
    x: root.rightEdge - width * shown.value + (12 + 40) * (1 - shown.value)
    y: row.value
    width: 320
    height: 68

    Accessible.role: Accessible.Notification
    Accessible.name: root.application
    Accessible.description: root.what

    SpringValue {
        id: shown
        target: entered.value && !root.isLeaving ? 1 : 0
        response: 0.45
        damping: 0.86
        curve: root.isLeaving ? SpringValue.EaseIn : SpringValue.Spring
        duration: 0.28
    }
    SpringValue {
        id: row
        target: root.topEdge
        response: 0.4
        damping: 0.9
    }
    QtObject {
        id: entered
        property bool value: false
    }
    Component.onCompleted: entered.value = true

    WindowPlate {
        anchors.fill: parent
        radius: 17
        isActive: false
        color: "#f3f1f5"
    }
    ImageView {
        x: 14
        anchors.verticalCenter: parent.verticalCenter
        width: 38
        height: 38
        image: root.image
    }
    Column {
        x: 64
        width: root.width - 80
        anchors.verticalCenter: parent.verticalCenter
        spacing: 3

        StyledText {
            width: parent.width
            elide: Text.ElideRight
            text: root.application
            size: 13
            font.weight: Font.DemiBold
            color: Qt.rgba(0, 0, 0, 0.88)
        }
        StyledText {
            width: parent.width
            elide: Text.ElideRight
            text: root.what
            size: 13
            color: Qt.rgba(0, 0, 0, 0.72)
        }
    }
}
