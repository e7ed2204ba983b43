pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui
import Brimshade.Windows

// Where the user is in the flow, and the ways on and back.
Item {
    id: root

    required property OnboardingFlow flow
    readonly property bool skips: root.flow.action === OnboardingFlow.Skip

    function title(action: int): string {
        switch (action) {
        case OnboardingFlow.GetStarted:
            return qsTr("Get started");
        case OnboardingFlow.Skip:
            return qsTr("Skip for now");
        case OnboardingFlow.Finish:
            return qsTr("Finish");
        default:
            return qsTr("Continue");
        }
    }

    implicitHeight: primary.implicitHeight

    StepDots {
        objectName: "stepDots"
        anchors.verticalCenter: parent.verticalCenter
        steps: root.flow.steps
        step: root.flow.position
    }
    PushButton {
        objectName: "backButton"
        anchors.right: root.skips ? skip.left : primary.left
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        visible: root.flow.step > 0
        style: PushButton.Plain
        textColor: Qt.rgba(1, 1, 1, 0.6)
        text: qsTr("Back")
        onClicked: root.flow.back()
    }
    PushButton {
        id: skip
        objectName: "skipButton"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: root.skips
        style: PushButton.Plain
        textColor: Qt.rgba(1, 1, 1, 0.6)
        text: root.title(OnboardingFlow.Skip)
        onClicked: root.flow.act()
    }
    PrimaryButton {
        id: primary
        objectName: "primaryButton"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: !root.skips
        text: root.title(root.flow.action)
        onClicked: root.flow.act()
    }
}
