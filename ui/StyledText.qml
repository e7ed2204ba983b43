pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// Plain text that a person can read, in the system's font. size is in whole points of the scene.
Text {
    id: root

    property real size: 13

    font.family: Theme.family
    font.pointSize: root.size * Theme.pointsPerUnit
    textFormat: Text.PlainText
    color: Theme.primaryText

    Accessible.role: Accessible.StaticText
    Accessible.name: root.text
}
