pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brimshade.Ui

// A push button with a title. Plain has no border and shows only its title.
T.Button {
    id: control

    enum Style { Bordered, Prominent, Plain }

    property int style: PushButton.Bordered
    property bool small: false
    property color tint: control.style === PushButton.Prominent ? control.palette.highlight : control.palette.button
    property color textColor: control.style === PushButton.Prominent ? "white" : control.palette.buttonText
    readonly property bool plain: control.style === PushButton.Plain
    readonly property real cornerRadius: control.small ? 5 : 6

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: control.plain ? implicitContentHeight + 4 : control.small ? 20 : 24
    leftPadding: control.plain ? 0 : control.small ? 10 : 12
    rightPadding: leftPadding
    topPadding: 0
    bottomPadding: 0
    opacity: Theme.presence(control)

    Accessible.role: Accessible.Button
    Accessible.name: control.text
    Accessible.onPressAction: control.clicked()

    contentItem: StyledText {
        text: control.text
        size: control.small ? 11 : 13
        font.weight: control.style === PushButton.Prominent ? Font.Medium : Font.Normal
        color: control.textColor
        opacity: control.plain && control.down ? 0.6 : 1
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    background: Item {
        ControlShadow {
            visible: control.style === PushButton.Bordered
            radius: control.cornerRadius
        }
        RoundedShape {
            visible: !control.plain
            anchors.fill: parent
            radius: control.cornerRadius
            color: control.tint
        }
        RoundedShape {
            visible: !control.plain && control.down
            anchors.fill: parent
            radius: control.cornerRadius
            color: control.style === PushButton.Bordered ? Qt.rgba(0, 0, 0, 0.1) : Qt.rgba(1, 1, 1, 0.18)
        }
        FocusRing {
            visible: control.visualFocus
            anchors.leftMargin: control.plain ? -7 : -3
            anchors.rightMargin: control.plain ? -7 : -3
            cornerRadius: control.cornerRadius
        }
    }
}
