pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// The one tooltip of a view, above everything in its parent, which it stays inside. The item under the pointer calls
// show(), follow() when its text changes, and hide() when the pointer leaves or presses it. Assistive programs get the
// text as the item's own description.
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

    // Not a Timer, which follows the wall clock instead of the animations' clock.
    NumberAnimation {
        id: delay
        target: root
        property: "waited"
        from: 0
        to: 1
        duration: 700
        onFinished: root.place()
    }

    TipBubble {
        id: bubble
        objectName: "helpTip"
        visible: root.shown
        text: root.text
    }
}
