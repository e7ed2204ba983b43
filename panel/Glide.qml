pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// How the panel's size and its content move when the items to show change.
SpringValue {
    response: 0.4
    damping: 0.85
}
