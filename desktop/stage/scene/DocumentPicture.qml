pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// The picture in the other application's document.
Item {
    RoundedShape {
        anchors.fill: parent
        radius: 9
        gradient: RoundedShape.Diagonal
        color: "#ffd9a8"
        endColor: "#f2688c"
    }
    RoundedShape {
        x: 196
        y: 26
        width: 66
        height: 66
        radius: 33
        continuous: false
        color: Qt.rgba(1, 1, 1, 0.85)
    }
    RoundedShape {
        x: 26
        y: 62
        width: 150
        height: 62
        radius: 31
        continuous: false
        gradient: RoundedShape.Vertical
        color: "#5b4bd6"
        endColor: "#8f6bf0"
    }
    RoundedShape {
        x: 128
        y: 82
        width: 130
        height: 42
        radius: 21
        continuous: false
        color: Qt.rgba(0.14, 0.72, 0.68, 0.9)
    }
}
