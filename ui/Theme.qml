pragma Singleton
pragma ComponentBehavior: Bound
import QtQuick

// What several views share. Sizes are points; fonts are set by points on screen, see fontSize().
QtObject {
    readonly property string family: "Inter"

    readonly property real windowRadius: 11

    readonly property color orange: "#ff9f0a"
    readonly property color pink: "#ff375f"
    readonly property color green: "#30d158"
    readonly property color purple: "#bf5af2"
    readonly property color cyan: "#64d2ff"
    readonly property color blue: "#0a84ff"
    readonly property color red: "#ff453a"
    readonly property color hiddenMarker: Qt.rgba(1, 0.62, 0.2, 1)

    // Text in windows on dark.
    readonly property color primaryText: Qt.rgba(1, 1, 1, 0.92)
    readonly property color secondaryText: Qt.rgba(0.92, 0.92, 0.96, 0.6)
    readonly property color quaternaryFill: Qt.rgba(1, 1, 1, 0.1)
    readonly property color separator: Qt.rgba(1, 1, 1, 0.1)

    // The toolkit's own point is a 72nd of an inch of the screen; this system's is one unit of the scene.
    readonly property real pointsPerUnit: 72 / (25.4 * Application.screens[0].logicalPixelDensity)
}
