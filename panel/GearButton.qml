pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brimshade.Ui

// Plain: a symbol alone, brighter under the pointer.
T.AbstractButton {
    id: root

    required property HelpTip helpTip
    property color color: "white"

    objectName: "settingsButton"
    implicitWidth: implicitContentWidth
    implicitHeight: implicitContentHeight
    hoverEnabled: true
    focusPolicy: Qt.NoFocus // the panel's keys belong to the search
    Accessible.role: Accessible.Button
    Accessible.name: qsTr("Settings")

    onHoveredChanged: root.hovered ? root.helpTip.show(root, qsTr("Settings")) : root.helpTip.hide(root)
    onPressed: root.helpTip.hide(root)

    contentItem: SymbolIcon {
        name: "gearshape.fill"
        pointSize: 11
        weight: SymbolIcon.Semibold
        color: root.down ? Qt.rgba(1, 1, 1, 0.3) : root.hovered ? Qt.rgba(1, 1, 1, 0.8) : root.color
    }
}
