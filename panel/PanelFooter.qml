pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Model
import Brimshade.Panel
import Brimshade.Ui

// One line: the focused item's detail or the hint. A new line fades in while the one before sinks and fades.
Item {
    id: root

    required property PanelState panelState
    required property bool animated

    component Line: StyledText {
        required property string line
        required property bool isHint

        text: isHint && root.width < wholeHint.implicitWidth ? root.panelState.briefHint : line
        width: root.width
        height: root.height
        size: 11
        font.weight: Font.Medium
        color: Qt.rgba(1, 1, 1, isHint ? 0.28 : 0.7)
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }

    height: PanelMetrics.footerHeight

    FooterText {
        id: lines
        state: root.panelState
        onReplaced: root.animated ? change.run(0, 1) : change.jumpTo(1)
    }
    StyledText {
        id: wholeHint
        visible: false
        text: root.panelState.hint
        font: current.font
    }
    SpringValue {
        id: change
        target: 1
        curve: SpringValue.EaseOut
        duration: 0.15
    }
    Line {
        id: current
        objectName: "footer"
        y: 3 * (1 - change.value)
        opacity: change.value
        line: lines.text
        isHint: lines.isHint
    }
    Line {
        y: 3 * change.value
        visible: change.running
        opacity: 1 - change.value
        line: lines.leavingText
        isHint: lines.leavingIsHint
        Accessible.ignored: true
    }
}
