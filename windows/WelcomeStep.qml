pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Windows

Item {
    id: root

    required property OnboardingFlow flow

    anchors.fill: parent

    Column {
        anchors.centerIn: parent
        width: parent.width
        spacing: 28

        HeroNotch {
            objectName: "heroNotch"
            anchors.horizontalCenter: parent.horizontalCenter
            icons: root.flow.heroIcons
        }
        StepHeader {
            title: qsTr("Your whole menu bar, one click away")
            body: qsTr("The notch hides menu bar items when there's no room.\nBrimshade opens the notch and shows every one of them.")
        }
    }
}
