pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// How the panel's size and what stands in it change when there are other items to show.
SpringValue {
    response: 0.4
    damping: 0.85
}
