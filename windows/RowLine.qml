pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// What parts a row of the form from the one above.
Line {
    id: root

    x: Theme.formInset
    width: parent.width - 2 * Theme.formInset
    height: 0.5
    color: root.palette.mid
}
