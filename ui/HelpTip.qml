pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// The one tooltip of a view, above everything in its parent, which it stays inside. The item under the pointer calls
// show() and, when the pointer leaves it or presses it, hide(); follow() when its text changes. Assistive programs get the text as the item's own description.
Item {
    id: root

    property Item target: null
    property string text
    property bool shown: false
    property real waited: 0 // of the time until it is shown, 0 to 1

    function show(target: Item, text: string) {
        root.shown = root.shown && root.target === target;
        root.target = target;
        root.text = text;
        if (!root.shown)
            delay.restart();
    }

    function hide(target: Item) {
        if (root.target !== target)
            return;
        delay.stop();
        root.shown = false;
        root.target = null;
    }

    function follow(target: Item, text: string) {
        if (root.target !== target)
            return;
        root.text = text;
        if (root.shown)
            root.place();
    }

    function place() {
        const below = root.target.mapToItem(root, root.target.width / 2, root.target.height + 6);
        const fits = below.y + bubble.height <= root.height;
        const above = root.target.mapToItem(root, 0, -6).y - bubble.height;
        bubble.x = Math.round(Math.max(4, Math.min(below.x - bubble.width / 2, root.width - bubble.width - 4)));
        bubble.y = Math.round(fits ? below.y : above);
        root.shown = true;
    }

    anchors.fill: parent
    z: 100

    // Not a Timer, which goes by the wall and not by the animations' clock.
    NumberAnimation {
        id: delay
        target: root
        property: "waited"
        from: 0
        to: 1
        duration: 700
        onFinished: root.place()
    }

    Item {
        id: bubble
        objectName: "helpTip"
        visible: root.shown
        width: Math.min(label.implicitWidth, 260) + 16
        height: label.height + 8

        Shadow {
            anchors.fill: parent
            anchors.topMargin: 2
            anchors.bottomMargin: -2
            radius: 5
            blur: 5
            color: Qt.rgba(0, 0, 0, 0.3)
        }
        RoundedShape {
            anchors.fill: parent
            radius: 5
            color: "#2c2c2e"
            strokeColor: Qt.rgba(1, 1, 1, 0.14)
            strokeWidth: 0.5
        }
        StyledText {
            id: label
            anchors.centerIn: parent
            width: Math.min(implicitWidth, 260)
            text: root.text
            size: 11
            wrapMode: Text.WordWrap
            Accessible.role: Accessible.ToolTip
        }
    }
}
