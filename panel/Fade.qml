pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// How things that leave fade out in their place.
SpringValue {
    curve: SpringValue.EaseOut
    duration: 0.2
}
