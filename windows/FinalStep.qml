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
        spacing: 26

        StepHeader {
            title: qsTr("Almost there")
            body: qsTr("A couple of last details.")
        }
        Column {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(460, parent.width)
            spacing: 12

            OptionSwitch {
                name: "setupLoginSwitch"
                symbol: "power"
                title: qsTr("Launch at login")
                subtitle: qsTr("Start Brimshade with your Mac")
                value: root.model.launchAtLogin
                onValueRequested: value => root.model.launchAtLogin = value
            }
            OptionSwitch {
                name: "setupShowVisibleSwitch"
                symbol: "square.grid.2x2"
                title: qsTr("Show every item in the panel")
                subtitle: qsTr("Not only the hidden ones")
                value: root.model.showVisible
                onValueRequested: value => root.model.showVisible = value
            }
        }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: root.flow.pendingCount > 0
            spacing: 6

            SymbolIcon {
                name: "hand.raised.fill"
                pointSize: 12
                color: Qt.rgba(1, 1, 1, 0.6)
            }
            StyledText {
                objectName: "pendingLabel"
                width: Math.min(implicitWidth, 420)
                text: qsTr("Finishing moves %n item(s) for you. Your pointer will jump for a few seconds, so hands off the mouse.", "", root.flow.pendingCount)
                size: 12
                color: Qt.rgba(1, 1, 1, 0.6)
                wrapMode: Text.WordWrap
            }
        }
    }
}
