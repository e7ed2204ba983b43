pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Model
import Brimshade.Ui
import Brimshade.Windows

Item {
    id: root

    required property NotchModel model
    required property OnboardingFlow flow

    anchors.fill: parent

    Column {
        anchors.centerIn: parent
        width: parent.width
        spacing: 22

        PermissionSymbol {
            anchors.horizontalCenter: parent.horizontalCenter
            trusted: root.model.trusted
        }
        StepHeader {
            title: qsTr("Allow Accessibility")
            body: qsTr("Brimshade reads your menu bar items and opens them through Accessibility.\nNothing leaves your Mac.")
        }
        Pill {
            objectName: "accessPill"
            anchors.horizontalCenter: parent.horizontalCenter
            text: root.model.trusted ? qsTr("Access granted") : qsTr("Waiting for access…")
            dotColor: root.model.trusted ? Theme.green : Theme.orange
        }
        PushButton {
            objectName: "openAccessibilityButton"
            anchors.horizontalCenter: parent.horizontalCenter
            visible: !root.model.trusted
            style: PushButton.Prominent
            text: qsTr("Open Accessibility Settings")
            onClicked: root.flow.openAccessibilitySettings()
        }
        StyledText {
            objectName: "accessHint"
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(380, parent.width)
            visible: !root.model.trusted
            text: qsTr("Already listed but this doesn't turn green? Select Brimshade, remove it with –, then allow it again.")
            size: 11
            color: Qt.rgba(1, 1, 1, 0.4)
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
        }
    }
}
