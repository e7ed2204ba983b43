pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

Row {
    id: root

    required property int steps
    required property int step

    spacing: 6
    Accessible.role: Accessible.Indicator
    Accessible.name: qsTr("Step %1 of %2").arg(root.step + 1).arg(root.steps)

    Repeater {
        model: root.steps

        Rectangle {
            id: dot

            required property int index

            width: 6 + 12 * Math.max(0, shown.value)
            height: 6
            radius: 3
            color: "white"
            opacity: 0.2 + 0.7 * shown.clamped

            StepSpring {
                id: shown
                target: dot.index === root.step ? 1 : 0
            }
        }
    }
}
