pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// The thin shadow under a control that stands out of its window.
Shadow {
    anchors.fill: parent
    anchors.topMargin: 0.5
    anchors.bottomMargin: -0.5
    blur: 0.8
    color: Qt.rgba(0, 0, 0, 0.22)
}
