pragma Singleton
pragma ComponentBehavior: Bound
import QtQuick

// What several views share. Sizes are points; StyledText makes fonts of them.
QtObject {
    readonly property string family: "Inter"

    readonly property real windowRadius: 11

    readonly property color orange: "#ff9f0a"
    readonly property color pink: "#ff375f"
    readonly property color green: "#30d158"
    readonly property color purple: "#bf5af2"
    readonly property color cyan: "#64d2ff"
    readonly property color blue: "#0a84ff"

    readonly property color primaryText: Qt.rgba(1, 1, 1, 0.92) // in windows on dark
    readonly property color brightText: Qt.rgba(1, 1, 1, 0.95) // and symbols, over a picture

    // Windows in the light form.
    readonly property color lightWindow: "#f2f2f4"
    readonly property color lightText: Qt.rgba(0, 0, 0, 0.85)
    readonly property color lightAccent: "#007aff"
    readonly property color lightOrange: "#ff9500"
    readonly property color lightTrack: Qt.rgba(0, 0, 0, 0.16) // of a switch that is off

    readonly property real formInset: 12 // of what stands in a row of a form

    // The fade at a scrolled view's end: its height, and its opacity with that many points hidden beyond it.
    readonly property real fadeHeight: 28
    function fadeOpacity(beyond: real): real {
        return Math.max(0, Math.min(beyond / 20, 1));
    }

    // The toolkit's own point is a 72nd of an inch of the screen; this system's is one unit of the scene.
    readonly property real pointsPerUnit: 72 / (25.4 * Application.screens[0].logicalPixelDensity)

    // The opacity of a control: less where it is disabled, but not where everything around it is and merely fades.
    function presence(control: Item): real {
        return control.enabled || !(control.parent?.enabled ?? true) ? 1 : 0.4;
    }

    // The colour of secondary things beside text in that ink.
    function secondary(ink: color): color {
        return Qt.alpha(ink, 0.5);
    }
}
