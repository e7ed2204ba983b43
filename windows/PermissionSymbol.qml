pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// The open lock, which a green seal replaces: one shrinks and fades while the other grows.
Item {
    id: root

    required property bool trusted

    implicitWidth: lock.width
    implicitHeight: lock.height

    StepSpring {
        id: granted
        target: root.trusted ? 1 : 0
    }
    SymbolIcon {
        id: lock
        name: "lock.open.fill"
        pointSize: 44
        weight: SymbolIcon.Semibold
        color: Theme.orange
        endColor: Theme.pink
        opacity: 1 - 2 * granted.value
        scale: 1 - 0.4 * granted.clamped
    }
    SymbolIcon {
        name: "checkmark.seal.fill"
        pointSize: 44
        weight: SymbolIcon.Semibold
        color: Theme.green
        opacity: 2 * granted.value - 1
        scale: 0.6 + 0.4 * granted.value
    }
}
