pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// A group of the form: rows in a rounded box under a title. Rows draw the line between them and the row above.
Column {
    id: root

    property string title
    property string footer
    default property alias rows: column.data

    width: parent?.width ?? 0
    spacing: 8

    StyledText {
        x: Theme.formInset
        width: root.width - 2 * Theme.formInset
        visible: root.title !== ""
        text: root.title
        size: 13
        font.weight: Font.DemiBold
        color: root.palette.windowText
        wrapMode: Text.WordWrap
        Accessible.role: Accessible.Heading
    }
    RoundedShape {
        width: root.width
        height: column.height
        radius: 10
        color: root.palette.base
        strokeColor: root.palette.mid
        strokeWidth: 0.5

        Column {
            id: column
            width: parent.width
        }
    }
    StyledText {
        x: Theme.formInset
        width: root.width - 2 * Theme.formInset
        visible: root.footer !== ""
        text: root.footer
        size: 11
        color: Theme.secondary(root.palette.windowText)
        wrapMode: Text.WordWrap
    }
}
