pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brimshade.Ui

// Scrolls its content with the wheel and to whatever in it gets the keyboard. It cannot be dragged: a press in it is
// for what lies there. Its bar lies over the content and shows while it scrolls or has the pointer on it.
Flickable {
    id: root

    property Item focused: root.Window.activeFocusItem

    function contains(item: Item): bool {
        for (let each = item; each; each = each.parent) {
            if (each === root.contentItem)
                return true;
        }
        return false;
    }

    function scrollTo(y: real) {
        root.contentY = Math.max(0, Math.min(y, root.contentHeight - root.height));
    }

    function reveal(item: Item) {
        const margin = 24;
        const top = item.mapToItem(root.contentItem, 0, 0).y;
        if (top - margin < root.contentY)
            root.scrollTo(top - margin);
        else if (top + item.height + margin > root.contentY + root.height)
            root.scrollTo(top + item.height + margin - root.height);
    }

    clip: true
    interactive: false
    boundsBehavior: Flickable.StopAtBounds
    onFocusedChanged: {
        if (root.contains(root.focused))
            root.reveal(root.focused);
    }
    onContentHeightChanged: root.scrollTo(root.contentY)
    onContentYChanged: trace.run(1, 0)

    // 1 while it scrolls, then a while longer, then gone.
    SpringValue {
        id: trace
        curve: SpringValue.EaseInOut
        delay: 0.7
        duration: 0.25
    }

    WheelHandler {
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        onWheel: event => root.scrollTo(root.contentY - (event.pixelDelta.y || event.angleDelta.y / 2))
    }

    T.ScrollBar.vertical: T.ScrollBar {
        id: bar
        policy: root.contentHeight > root.height ? T.ScrollBar.AlwaysOn : T.ScrollBar.AlwaysOff
        visible: root.contentHeight > root.height
        hoverEnabled: true
        width: 10
        padding: 2
        bottomPadding: 8
        minimumSize: 0.08
        contentItem: Rectangle {
            radius: 3
            color: bar.palette.windowText
            opacity: bar.pressed || bar.hovered ? 0.5 : 0.35 * trace.value
        }
    }
}
