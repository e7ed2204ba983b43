pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Desktop
import Brimshade.Ui

// The tooltip of the bar's items, under the item that it is about. Laid out in display space.
TipBubble {
    id: root

    required property BarTip tip

    objectName: "barTip"
    visible: root.tip.isShown
    text: root.tip.text
    x: Math.round(Math.max(root.tip.barFrame.left + 4, Math.min(root.tip.itemFrame.x + (root.tip.itemFrame.width - root.width) / 2, root.tip.barFrame.right - root.width - 4)))
    y: root.tip.barFrame.bottom + 6
}
