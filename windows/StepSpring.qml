pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Ui

// How a mark of the setup flow changes as the user moves through it.
SpringValue {
    response: 0.35
    damping: 0.8
}
