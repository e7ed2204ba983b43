pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui
import Brimshade.Windows

// Where the user is in the flow, and the buttons that go on and back.
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

    // A button that appears can be found and pressed at once; one that disappears cannot.
    component Presence: StepSpring {
        property bool shown
        readonly property real opacity: shown ? Math.max(0.02, clamped) : clamped

        target: shown ? 1 : 0
    }

    implicitHeight: primary.implicitHeight

    Presence {
        id: back
        shown: root.flow.step > 0
    }
    Presence {
        id: skipping
        shown: root.skips
    }
    Presence {
        id: acting
        shown: !root.skips
    }

    StepDots {
        objectName: "stepDots"
        anchors.verticalCenter: parent.verticalCenter
        steps: root.flow.steps
        step: root.flow.position
    }
    PushButton {
        objectName: "backButton"
        anchors.right: root.skips ? skip.left : action.left
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        visible: opacity > 0
        opacity: back.opacity
        enabled: back.shown
        Accessible.ignored: !back.shown
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
        visible: opacity > 0
        opacity: skipping.opacity
        enabled: root.skips
        Accessible.ignored: !root.skips
        style: PushButton.Plain
        textColor: Qt.rgba(1, 1, 1, 0.6)
        text: root.title(OnboardingFlow.Skip)
        onClicked: root.flow.act()
    }
    FadingGroup {
        id: action
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: primary.width
        height: primary.height
        visible: shown > 0
        shown: acting.opacity

        PrimaryButton {
            id: primary
            objectName: "primaryButton"
            enabled: !root.skips
            Accessible.ignored: root.skips
            onClicked: root.flow.act()

            // It keeps its title while it goes.
            Binding on text {
                value: root.title(root.flow.action)
                when: !root.skips
                restoreMode: Binding.RestoreNone
            }
        }
    }
}
