pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Model
import Brimshade.Panel
import Brimshade.Ui

// The row level with the notch: what is hidden or searched on its left, the count and the settings on its right.
Item {
    id: root

    required property NotchModel model
    required property PanelState panelState
    required property HelpTip helpTip

    readonly property color dim: Qt.rgba(1, 1, 1, 0.45)
    readonly property real sideWidth: (root.width - root.model.notch.width - PanelMetrics.notchClearance) / 2

    enabled: root.panelState.hasHeader
    opacity: fade.value

    SpringValue {
        id: fade
        target: root.panelState.hasHeader ? 1 : 0
        curve: SpringValue.EaseOut
        duration: root.model.isOpen ? 0.3 : 0.08
        delay: root.model.isOpen ? 0.12 : 0
    }

    Row {
        anchors.verticalCenter: parent.verticalCenter
        spacing: 5

        SymbolIcon {
            id: leadingIcon
            anchors.verticalCenter: parent.verticalCenter
            name: root.model.query === "" ? "eye.slash.fill" : "magnifyingglass"
            pointSize: 11
            weight: SymbolIcon.Semibold
            color: root.dim
        }
        StyledText {
            objectName: "hiddenCount"
            anchors.verticalCenter: parent.verticalCenter
            visible: root.model.query === ""
            text: qsTr("%n hidden", "", root.model.hiddenCount)
            size: 11
            font.weight: Font.DemiBold
            color: root.dim
        }
        Row {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.model.query !== ""
            spacing: 1.5

            StyledText {
                objectName: "query"
                width: Math.min(implicitWidth, root.sideWidth - leadingIcon.width - caret.width - 6)
                text: root.model.query.replace(/\s/g, "\u00a0") // trailing blanks keep their width, tabs get no more
                size: 11
                font.weight: Font.DemiBold
                color: "white"
                elide: Text.ElideLeft
                Accessible.name: root.model.query
            }
            // "▍", which the font lacks.
            Line {
                id: caret
                objectName: "caret"
                anchors.verticalCenter: parent.verticalCenter
                width: 2.5
                height: 12
                color: Theme.orange
                Accessible.role: Accessible.StaticText
                Accessible.name: "▍"
            }
        }
    }
    Row {
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: 8

        StyledText {
            objectName: "itemCount"
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("%n items", "", root.model.itemCount)
            size: 11
            font.weight: Font.DemiBold
            color: root.dim
        }
        GearButton {
            anchors.verticalCenter: parent.verticalCenter
            helpTip: root.helpTip
            color: root.dim
            onClicked: root.panelState.openSettings()
        }
    }
}
