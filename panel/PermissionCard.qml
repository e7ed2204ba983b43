pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Model
import Brimshade.Ui

// Shown instead of the tiles while the permission is missing.
Column {
    id: root

    required property PermissionRequest permission

    topPadding: 14
    spacing: 10

    SymbolIcon {
        anchors.horizontalCenter: parent.horizontalCenter
        name: "lock.open.fill"
        pointSize: 22
        weight: SymbolIcon.Semibold
        color: Theme.orange
        endColor: Theme.pink
    }
    StyledText {
        anchors.horizontalCenter: parent.horizontalCenter
        text: qsTr("One permission, then you're set")
        size: 14
        font.weight: Font.DemiBold
        color: "white"
    }
    StyledText {
        width: root.width
        text: qsTr("Brimshade reads your menu bar through Accessibility.\nNothing leaves your Mac.")
        size: 11
        color: Qt.rgba(1, 1, 1, 0.5)
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
    }
    PushButton {
        objectName: "openAccessibilitySettings"
        anchors.horizontalCenter: parent.horizontalCenter
        text: qsTr("Open Accessibility Settings")
        style: PushButton.Prominent
        small: true
        tint: Qt.rgba(1, 1, 1, 0.15)
        textColor: "white"
        onClicked: root.permission.openAccessibilitySettings()
    }
}
