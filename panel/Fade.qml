pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// How what goes disappears in its place.
SpringValue {
    curve: SpringValue.EaseOut
    duration: 0.2
}
