pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Desktop
import Brimshade.Ui

// One entry of an open menu.
Item {
    id: root

    required property int row
    required property real offset // from the top of the list, unscrolled
    required property string title
    required property bool isSeparator
    required property bool isEnabled
    required property int toggle // 0 none, 1 checkmark, 2 radio
    required property bool isOn
    required property var image
    required property string shortcut
    required property bool hasSubmenu
    required property bool isCurrent
    required property real textColumn
    required property real iconColumn
    readonly property color ink: root.isCurrent ? "white" : Qt.rgba(0, 0, 0, root.isEnabled ? 0.87 : 0.28)

    objectName: "menuRow"
    height: root.isSeparator ? MenuMetrics.separatorHeight : MenuMetrics.rowHeight

    Accessible.role: root.isSeparator ? Accessible.Separator : Accessible.MenuItem
    Accessible.name: root.isSeparator ? "" : root.title
    Accessible.description: root.shortcut
    Accessible.checkable: root.toggle !== 0
    Accessible.checked: root.isOn
    enabled: root.isEnabled && !root.isSeparator

    Rectangle {
        visible: root.isSeparator
        x: MenuMetrics.sideInset + MenuMetrics.textInset
        y: (MenuMetrics.separatorHeight - height) / 2
        width: root.width - 2 * x
        height: 1
        color: Qt.rgba(0, 0, 0, 0.11)
    }
    RoundedShape {
        visible: root.isCurrent
        x: MenuMetrics.sideInset
        width: root.width - 2 * x
        height: root.height
        radius: 4.5
        color: "#0a7aff"
    }
    SymbolIcon {
        visible: root.toggle === 1 && root.isOn
        x: 10
        anchors.verticalCenter: parent.verticalCenter
        name: "checkmark"
        pointSize: 11
        weight: SymbolIcon.Bold
        color: root.ink
    }
    RoundedShape {
        visible: root.toggle === 2 && root.isOn
        x: 14
        anchors.verticalCenter: parent.verticalCenter
        width: 6
        height: 6
        radius: 3
        continuous: false
        color: root.ink
    }
    ImageView {
        x: MenuMetrics.sideInset + root.iconColumn
        anchors.verticalCenter: parent.verticalCenter
        width: MenuMetrics.iconSize
        height: MenuMetrics.iconSize
        image: root.image
        templateColor: root.ink
        opacity: root.isEnabled ? 1 : 0.4
    }
    StyledText {
        visible: !root.isSeparator
        x: MenuMetrics.sideInset + root.textColumn
        width: root.width - x - (shortcutText.visible ? shortcutText.width + 24 : 14)
        anchors.verticalCenter: parent.verticalCenter
        elide: Text.ElideMiddle
        text: root.title
        size: MenuMetrics.textSize
        color: root.ink
        Accessible.ignored: true
    }
    StyledText {
        id: shortcutText
        visible: text !== ""
        x: root.width - width - 14
        anchors.verticalCenter: parent.verticalCenter
        text: root.shortcut
        size: MenuMetrics.textSize
        color: root.ink
        opacity: root.isCurrent ? 1 : 0.55
        Accessible.ignored: true
    }
    SymbolIcon {
        visible: root.hasSubmenu
        x: root.width - width - 8
        anchors.verticalCenter: parent.verticalCenter
        name: "chevron.right"
        pointSize: 10
        weight: SymbolIcon.Semibold
        color: root.ink
    }
}
