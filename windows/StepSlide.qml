pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// Holds one step of the flow while it is the current one or on its way out: it comes in from the right and leaves to
// the left, fading. Turned round half way, it goes back the way it came.
FadingGroup {
    id: root

    required property bool current
    default property alias step: place.delegate
    property int side: 1 // where it is coming from or going to: 1 right, -1 left

    anchors.fill: parent
    enabled: root.current
    visible: root.current || presence.running
    shown: presence.clamped
    transform: Translate {
        // On whole pixels, where the pieces of a picture meet.
        x: Math.round(root.side * 30 * (1 - presence.value) * Screen.devicePixelRatio) / Screen.devicePixelRatio
    }
    onCurrentChanged: {
        if (root.current && presence.value < 0.01)
            root.side = 1;
        else if (!root.current && presence.value > 0.99)
            root.side = -1;
    }

    Repeater {
        id: place
        model: root.current || presence.running ? 1 : 0
    }
    SpringValue {
        id: presence
        target: root.current ? 1 : 0
        response: 0.45
        damping: 0.85
    }
}
