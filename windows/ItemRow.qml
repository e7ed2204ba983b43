pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui
import Brimshade.Windows

// A menu bar item in the settings, with the controls for it.
Item {
    id: root

    required property string extraID
    required property string name
    required property string detail
    required property var image
    required property string symbol
    required property int control
    required property bool switchEnabled
    required property bool inMenuBar
    readonly property bool moving: root.control === ItemRows.Moving

    signal moveRequested(bool toMenuBar)

    objectName: "itemRow"
    width: parent?.width ?? 0
    height: 44

    RowLine {
    }
    ItemIcon {
        id: face
        x: Theme.formInset
        anchors.verticalCenter: parent.verticalCenter
        image: root.image
        symbol: root.symbol
    }
    Column {
        anchors.left: face.right
        anchors.leftMargin: 10
        anchors.right: trailing.left
        anchors.rightMargin: Theme.formInset
        anchors.verticalCenter: parent.verticalCenter
        spacing: 1

        StyledText {
            objectName: "itemName"
            width: parent.width
            text: root.name
            color: root.palette.windowText
            maximumLineCount: 1
            elide: Text.ElideRight
        }
        StyledText {
            objectName: "itemDetail"
            width: parent.width
            visible: root.detail !== ""
            text: root.detail
            size: 10
            color: Theme.secondary(root.palette.windowText)
            maximumLineCount: 1
            elide: Text.ElideRight
        }
    }
    Item {
        id: trailing
        anchors.right: parent.right
        anchors.rightMargin: Theme.formInset
        anchors.verticalCenter: parent.verticalCenter
        width: toggle.visible ? toggle.width : pinned.width
        height: parent.height

        Spinner {
            objectName: "itemSpinner"
            anchors.centerIn: toggle
            visible: root.moving
            color: root.palette.windowText
        }
        StyledText {
            id: pinned
            objectName: "itemPinned"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            visible: root.control === ItemRows.Pinned
            text: qsTr("Pinned by macOS")
            size: 10
            color: Theme.secondary(root.palette.windowText)
        }
        FocusRing {
            anchors.fill: toggle
            visible: root.moving && toggle.visualFocus
            cornerRadius: toggle.height / 2
        }
        // Stays under the spinner, unseen, so that the keyboard stays in the row.
        Switch {
            id: toggle
            objectName: "itemSwitch"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            visible: root.control !== ItemRows.Pinned
            opacity: root.moving ? 0 : 1
            text: qsTr("Visible")
            small: true
            enabled: root.switchEnabled
            value: root.inMenuBar
            Accessible.ignored: root.moving
            Accessible.description: root.name
            onValueRequested: value => root.moveRequested(value)
        }
    }
}
