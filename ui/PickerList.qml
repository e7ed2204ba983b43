pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// The open list of a Picker: fills the picker's layer and takes every key and click until it is closed.
FocusScope {
    id: root

    required property string title
    required property list<string> titles
    required property int currentIndex
    required property Item button
    readonly property int rowHeight: 24
    readonly property int inset: 5
    property int highlighted: root.currentIndex

    signal chosen(int index)
    signal dismissed

    function moveHighlight(step: int) {
        root.highlighted = Math.max(0, Math.min(root.highlighted + step, root.titles.length - 1));
    }

    function handleKey(key: int) {
        switch (key) {
        case Qt.Key_Up:
            return root.moveHighlight(-1);
        case Qt.Key_Down:
            return root.moveHighlight(1);
        case Qt.Key_Home:
            return root.moveHighlight(-root.titles.length);
        case Qt.Key_End:
            return root.moveHighlight(root.titles.length);
        case Qt.Key_Return:
        case Qt.Key_Enter:
        case Qt.Key_Space:
            return root.chosen(root.highlighted);
        case Qt.Key_Escape:
        case Qt.Key_Tab:
        case Qt.Key_Backtab:
            return root.dismissed();
        }
    }

    // The chosen row lies over the button's title.
    function place() {
        const over = root.button.mapToItem(root, 0, 0);
        const y = over.y + (root.button.height - root.rowHeight) / 2 - root.inset - root.currentIndex * root.rowHeight;
        box.x = Math.max(6, Math.min(over.x - 18, root.width - box.width - 6));
        box.y = Math.max(6, Math.min(y, root.height - box.height - 6));
    }

    focus: true
    Keys.onPressed: event => {
        event.accepted = true;
        root.handleKey(event.key);
    }
    Component.onCompleted: {
        root.place();
        root.forceActiveFocus(Qt.PopupFocusReason);
    }

    MouseArea {
        anchors.fill: parent
        onPressed: root.dismissed()
        onWheel: wheel => wheel.accepted = true
    }

    Shadow {
        anchors.fill: box
        anchors.topMargin: 4
        anchors.bottomMargin: -4
        radius: 8
        blur: 9
        color: Qt.rgba(0, 0, 0, 0.35)
    }
    RoundedShape {
        id: box
        width: Math.max(root.button.width + 18, rows.implicitWidth + 2 * root.inset)
        height: rows.height + 2 * root.inset
        radius: 8
        color: root.palette.base
        strokeColor: Qt.alpha(root.palette.windowText, 0.16)
        strokeWidth: 0.5

        Column {
            id: rows
            x: root.inset
            y: root.inset
            width: box.width - 2 * root.inset
            Accessible.role: Accessible.List
            Accessible.name: root.title

            Repeater {
                model: root.titles

                PickerRow {
                    required property int index
                    required property string modelData

                    width: rows.width
                    height: root.rowHeight
                    title: modelData
                    current: index === root.currentIndex
                    highlighted: index === root.highlighted
                    onEntered: root.highlighted = index
                    onChosen: root.chosen(index)
                }
            }
        }
    }
}
