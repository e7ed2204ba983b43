pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// The line between a row of the form and the one above.
Line {
    id: root

    x: Theme.formInset
    width: parent.width - 2 * Theme.formInset
    height: 0.5
    color: root.palette.mid
}
