pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Brimshade.Ui

// A pop-up button as used in forms: the chosen title and grey arrows. It opens a list of the titles over itself. The
// list is an item of the view it belongs to, not a popup of the toolkit, which would lie outside the view. Its text is
// its name to assistive programs; it is not drawn.
T.ComboBox {
    id: control

    required property list<string> titles
    required property int index
    required property string text
    // What the list lies over and stays inside: the view's root.
    required property Item surface
    property string help // said after the chosen title
    readonly property string currentTitle: control.titles[control.index] ?? ""
    property bool opened: false
    property bool openedByKeyboard: false

    signal chosen(int index)

    function open() {
        control.openedByKeyboard = control.visualFocus;
        control.opened = true;
    }

    function close() {
        control.opened = false;
        control.forceActiveFocus(control.openedByKeyboard ? Qt.TabFocusReason : Qt.MouseFocusReason);
    }

    implicitWidth: 150
    implicitHeight: 24
    opacity: Theme.presence(control)
    popup: null
    onVisibleChanged: control.opened = false
    Keys.forwardTo: [control.surface] // first: Return may be meant for the view, and the toolkit's combo box keeps it
    Keys.onSpacePressed: control.open()
    Keys.onUpPressed: control.open()
    Keys.onDownPressed: control.open()

    Accessible.role: Accessible.ComboBox
    Accessible.name: control.text
    Accessible.description: control.help === "" ? control.currentTitle : control.currentTitle + ". " + control.help
    Accessible.onPressAction: control.open()

    MouseArea {
        anchors.fill: parent
        onClicked: control.open()
    }

    contentItem: StyledText {
        rightPadding: 16
        text: control.currentTitle
        color: control.palette.buttonText
        horizontalAlignment: Text.AlignRight
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    background: Item {
        SymbolIcon {
            anchors.right: parent.right
            anchors.rightMargin: 5 - width / 2
            anchors.verticalCenter: parent.verticalCenter
            name: "chevron.up.chevron.down"
            pointSize: 10
            weight: SymbolIcon.Semibold
            color: Theme.secondary(control.palette.buttonText)
        }
        FocusRing {
            visible: control.visualFocus
        }
    }

    Repeater {
        parent: control.surface
        model: control.opened ? 1 : 0

        PickerList {
            objectName: control.objectName + "List"
            anchors.fill: parent
            z: 50
            title: control.text
            titles: control.titles
            currentIndex: control.index
            button: control
            onChosen: index => {
                control.close();
                control.chosen(index);
            }
            onDismissed: control.close()
        }
    }
}
