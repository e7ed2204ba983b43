pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Model
import Brimshade.Ui
import Brimshade.Windows

// The content of the setup window. The flow looks for the permission as long as this can be seen.
FocusScope {
    id: root

    required property NotchModel model
    required property OnboardingFlow flow

    implicitWidth: 640
    implicitHeight: 580
    focus: true
    palette {
        base: "#2a2a2d"
        windowText: "white"
        button: "#4a4a4e"
        buttonText: Theme.primaryText
        highlight: Theme.blue
        dark: Qt.rgba(1, 1, 1, 0.2)
    }
    Keys.onReturnPressed: root.pressPrimary()
    Keys.onEnterPressed: root.pressPrimary()
    Component.onDestruction: root.flow.active = false

    function pressPrimary() {
        if (root.flow.action !== OnboardingFlow.Skip)
            root.flow.act();
    }

    Binding {
        target: root.flow
        property: "active"
        value: root.visible
    }
    SetupBackdrop {
        anchors.fill: parent
        whole: Qt.size(width, height)
        radius: Theme.windowRadius
    }
    Item {
        id: content
        anchors.fill: parent
        anchors.leftMargin: 36
        anchors.rightMargin: 36
        anchors.topMargin: 44
        anchors.bottomMargin: 26

        Item {
            id: stage
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.bottom: bar.top
            anchors.bottomMargin: 8

            StepSlide {
                current: root.flow.step === OnboardingFlow.Welcome

                WelcomeStep {
                    flow: root.flow
                }
            }
            StepSlide {
                current: root.flow.step === OnboardingFlow.Permission

                PermissionStep {
                    model: root.model
                    flow: root.flow
                }
            }
            StepSlide {
                current: root.flow.step === OnboardingFlow.Items

                ItemsStep {
                    model: root.model
                    flow: root.flow
                    tip: helpTip
                    view: Qt.size(root.width, root.height)
                    place: Qt.point(content.anchors.leftMargin, content.anchors.topMargin)
                }
            }
            StepSlide {
                current: root.flow.step === OnboardingFlow.Opening

                OpeningStep {
                    model: root.model
                    surface: root
                }
            }
            StepSlide {
                current: root.flow.step === OnboardingFlow.Final

                FinalStep {
                    model: root.model
                    flow: root.flow
                }
            }
        }
        BottomBar {
            id: bar
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            flow: root.flow
        }
    }
    HelpTip {
        id: helpTip
    }
}
