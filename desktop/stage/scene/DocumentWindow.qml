pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Desktop
import Brimshade.Ui

// Another application's window, so that the screen looks lived in. Decoration only: it takes no input.
Item {
    id: root

    width: 520
    height: 430

    component Line: RoundedShape {
        height: 6
        radius: 3
        continuous: false
        color: "#d5d4dc"
    }

    WindowPlate {
        anchors.fill: parent
        isActive: false
        color: "#fbfbfc"
    }
    RoundedShape {
        x: 0.5
        width: 148
        height: parent.height
        radius: Theme.windowRadius
        color: "#efeef3"
    }
    Rectangle {
        x: 136
        y: 0
        width: 13
        height: parent.height
        color: "#fbfbfc"
    }
    Rectangle {
        x: 124
        width: 12
        height: parent.height
        color: "#efeef3"
    }
    Rectangle {
        x: 136
        width: 1
        height: parent.height
        color: Qt.rgba(0, 0, 0, 0.08)
    }
    Row {
        x: 12
        y: 12
        spacing: 8

        Repeater {
            model: 3

            RoundedShape {
                width: 12
                height: 12
                radius: 6
                continuous: false
                color: "#d3d3d6"
            }
        }
    }
    Column {
        x: 14
        y: 48
        spacing: 15

        Repeater {
            model: [{tint: Theme.orange, length: 70}, {tint: "#30b0c7", length: 54}, {tint: Theme.purple, length: 78},
                    {tint: Theme.pink, length: 46}, {tint: "#34c759", length: 64}]

            Row {
                id: entry
                required property var modelData

                spacing: 8

                RoundedShape {
                    width: 12
                    height: 12
                    radius: 3.5
                    color: entry.modelData.tint
                }
                Line {
                    anchors.verticalCenter: parent.verticalCenter
                    width: entry.modelData.length
                    color: "#c9c8d2"
                }
            }
        }
    }
    Column {
        x: 170
        y: 52
        spacing: 13

        Line {
            width: 190
            height: 15
            radius: 5
            color: "#3d3c4a"
        }
        Line {
            width: 110
            color: "#b4b3c0"
        }
        Item {
            width: 1
            height: 2
        }
        DocumentPicture {
            width: 316
            height: 150
        }
        Item {
            width: 1
            height: 1
        }
        Repeater {
            model: [312, 296, 316, 268, 304, 180]

            Line {
                required property int modelData

                width: modelData
            }
        }
    }
}
