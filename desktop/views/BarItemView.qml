pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// One status item. Pointer and keys reach it through the desktop, not through this view.
Item {
    id: root

    required property real origin // of the bar, in display space
    required property bool glides // whether it moves visibly instead of jumping
    required property rect frame
    required property real place
    required property string name
    required property string description
    required property string text
    required property string label
    required property string symbol
    required property var image
    required property size imageSize
    required property real imageLeft
    required property real labelLeft
    required property bool isHighlighted
    required property bool wantsAttention
    required property real dragOffset

    objectName: "barItem"
    x: standing.value + hand.value
    z: hand.value !== 0 ? 1 : 0
    opacity: root.dragOffset !== 0 ? 0.75 : 1
    width: root.frame.width
    height: root.frame.height

    // It follows the hand; once let go, it glides from there.
    onDragOffsetChanged: {
        if (root.dragOffset !== 0)
            hand.jumpTo(root.dragOffset);
        else
            hand.target = 0;
    }

    Accessible.role: Accessible.ButtonMenu
    Accessible.name: root.name
    Accessible.description: root.text !== "" ? root.text : root.description

    component Glide: SpringValue {
        response: 0.32
        damping: 0.86
    }

    Glide {
        id: standing
        target: root.place - root.origin
        animated: root.glides
    }
    Glide {
        id: hand
    }
    RoundedShape {
        visible: root.isHighlighted
        anchors.centerIn: parent
        width: parent.width
        height: Math.min(parent.height, 24)
        radius: 5
        color: Qt.rgba(1, 1, 1, 0.24)
    }
    StyledText {
        visible: root.text !== ""
        anchors.centerIn: parent
        text: root.text
        size: 13
        font.weight: Font.Medium
        color: Theme.brightText
        Accessible.ignored: true
    }
    SymbolIcon {
        visible: root.text === "" && root.symbol !== ""
        anchors.centerIn: parent
        name: root.symbol
        pointSize: 14
        weight: SymbolIcon.Semibold
        color: Theme.brightText
    }
    ImageView {
        visible: root.text === "" && root.symbol === "" && !isNull
        anchors.verticalCenter: parent.verticalCenter
        x: root.imageLeft
        width: root.imageSize.width
        height: root.imageSize.height
        image: root.image
        templateColor: Theme.brightText
    }
    StyledText {
        objectName: "label"
        visible: root.label !== ""
        anchors.verticalCenter: parent.verticalCenter
        x: root.labelLeft
        text: root.label
        size: 13
        font.weight: Font.Medium
        color: Theme.brightText
        Accessible.ignored: true
    }
    RoundedShape {
        objectName: "attention"
        Accessible.role: Accessible.Indicator
        Accessible.name: qsTr("Wants attention")
        visible: root.wantsAttention
        x: root.imageLeft + root.imageSize.width - width / 2
        y: root.height / 2 - 8 - height / 2
        width: 6
        height: 6
        radius: 3
        color: Theme.pink
    }
}
