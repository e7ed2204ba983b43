pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// The square of a choice tile: the item's picture, and a badge that says where it goes.
Item {
    id: root

    required property var image
    required property string symbol
    required property bool canMove
    required property bool hidden
    required property bool ringed // has the keyboard
    required property real lit // 1 stays, 0 tucked away

    implicitWidth: 64
    implicitHeight: 64

    RoundedShape {
        anchors.fill: parent
        radius: 18
        color: Qt.rgba(1, 1, 1, 0.04)
        strokeColor: Qt.rgba(1, 1, 1, 0.06)
        strokeWidth: 1
        opacity: 1 - root.lit
    }
    RoundedShape {
        anchors.fill: parent
        radius: 18
        color: Qt.rgba(1, 1, 1, 0.1)
        strokeColor: Qt.rgba(1, 1, 1, 0.25)
        strokeWidth: 1
        opacity: root.lit
    }
    ImageView {
        id: picture
        anchors.centerIn: parent
        width: 40
        height: 40
        image: root.image
        opacity: 0.45 + 0.55 * root.lit
    }
    SymbolIcon {
        anchors.centerIn: parent
        visible: picture.isNull
        name: root.symbol
        pointSize: 20
        weight: SymbolIcon.Semibold
        opacity: picture.opacity
    }
    FocusRing {
        visible: root.ringed
        cornerRadius: 18
        continuous: true
    }
    RoundedShape {
        objectName: "choiceBadge"
        x: parent.width - width + 2
        y: -2
        width: badge.width
        height: badge.height
        radius: height / 2
        continuous: false
        color: "black"

        SymbolIcon {
            id: badge
            anchors.centerIn: parent
            name: !root.canMove ? "lock.fill" : root.hidden ? "eye.slash.fill" : "checkmark.circle.fill"
            pointSize: 13
            weight: SymbolIcon.Bold
            color: !root.canMove ? Qt.rgba(1, 1, 1, 0.5) : root.hidden ? Theme.orange : Theme.green
        }
    }
}
