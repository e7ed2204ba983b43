pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brimshade.Ui

// One menu bar item of the setup flow: lit where it stays in the menu bar, dimmed where it is tucked away.
T.AbstractButton {
    id: control

    required property string name
    required property var image
    required property string symbol
    required property bool canMove
    required property bool hidden
    required property HelpTip tip
    readonly property string help: !control.canMove ? qsTr("Pinned by macOS") : control.hidden
        ? qsTr("Tucked into the notch. Click to keep it in the menu bar.") : qsTr("In the menu bar. Click to tuck it away.")

    signal toggleRequested

    implicitWidth: 96
    implicitHeight: implicitContentHeight
    hoverEnabled: true
    scale: press.value * grow.value
    onClicked: control.toggleRequested()
    onPressed: control.tip.hide(control)
    onHelpChanged: control.tip.follow(control, control.help)
    onHoveredChanged: control.hovered ? control.tip.show(control, control.help) : control.tip.hide(control)
    Component.onDestruction: control.tip?.hide(control)

    Accessible.role: Accessible.Button
    Accessible.name: control.name
    Accessible.description: control.help
    Accessible.onPressAction: control.clicked()

    component Change: SpringValue {
        response: 0.25
        damping: 0.7
    }

    PressStyle {
        id: press
        pressed: control.down
    }
    Change {
        id: grow
        target: control.hovered && control.canMove ? 1.05 : 1
    }
    // 1 where it stays, 0 where it is tucked away.
    Change {
        id: lit
        target: control.hidden ? 0 : 1
    }

    contentItem: Column {
        spacing: 8

        ChoiceWell {
            anchors.horizontalCenter: parent.horizontalCenter
            image: control.image
            symbol: control.symbol
            canMove: control.canMove
            hidden: control.hidden
            lit: lit.clamped
            ringed: control.visualFocus
        }
        StyledText {
            objectName: "choiceName"
            width: 96
            text: control.name
            size: 11
            font.weight: Font.Medium
            color: "white"
            opacity: 0.45 + 0.45 * lit.clamped
            horizontalAlignment: Text.AlignHCenter
            maximumLineCount: 1
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
}
