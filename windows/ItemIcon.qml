pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// A menu bar item's picture, or its symbol on a quiet square.
Item {
    id: root

    required property var image
    required property string symbol

    implicitWidth: 22
    implicitHeight: 22

    ImageView {
        id: picture
        objectName: "itemImage"
        anchors.fill: parent
        image: root.image
    }
    RoundedShape {
        anchors.fill: parent
        visible: picture.isNull
        radius: 6
        color: root.palette.midlight

        SymbolIcon {
            objectName: "itemSymbol"
            anchors.centerIn: parent
            name: root.symbol
            pointSize: 13
            weight: SymbolIcon.Semibold
            color: root.palette.windowText
        }
    }
}
