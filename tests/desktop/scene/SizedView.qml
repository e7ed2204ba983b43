pragma ComponentBehavior: Bound
import QtQuick

// A view whose size is its window's.
Item {
    property real wanted: 300

    implicitWidth: wanted
    implicitHeight: 200
}
