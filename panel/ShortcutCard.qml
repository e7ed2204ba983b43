pragma ComponentBehavior: Bound
import QtQuick
import Brimshade.Model
import Brimshade.Panel
import Brimshade.Ui

// Shown instead of the tiles while an item's shortcut is recorded. The keys go to the recorder, not to these views.
Column {
    id: root

    required property ShortcutRecorder recorder

    component Action: PushButton {
        style: PushButton.Prominent
        small: true
        tint: Qt.rgba(1, 1, 1, 0.15)
        textColor: "white"
        focusPolicy: Qt.NoFocus
    }

    topPadding: 12
    spacing: 10

    StyledText {
        objectName: "recorderTitle"
        width: root.width
        text: qsTr("Shortcut for %1").arg(root.recorder.name)
        size: 14
        font.weight: Font.DemiBold
        color: "white"
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignHCenter
    }
    RoundedShape {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: root.recorder.state !== ShortcutRecorder.Impossible
        width: 220
        height: 32
        radius: 9
        color: Qt.rgba(1, 1, 1, 0.08)
        strokeColor: root.recorder.state === ShortcutRecorder.Recorded ? Theme.green : Theme.orange
        strokeWidth: 1

        StyledText {
            objectName: "recorderKeys"
            anchors.fill: parent
            text: root.recorder.keys !== "" ? root.recorder.keys : qsTr("Press the keys")
            size: 13
            font.weight: Font.Medium
            color: Qt.rgba(1, 1, 1, root.recorder.keys !== "" ? 0.95 : 0.4)
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }
    }
    StyledText {
        objectName: "recorderSentence"
        width: root.width
        text: root.recorder.sentence
        size: 11
        color: root.recorder.state === ShortcutRecorder.Refused ? Theme.orange : Qt.rgba(1, 1, 1, 0.6)
        wrapMode: Text.WordWrap
        horizontalAlignment: Text.AlignHCenter
        Accessible.role: Accessible.AlertMessage
    }
    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        spacing: 8
        Action {
            objectName: "removeShortcut"
            visible: root.recorder.keys !== "" && root.recorder.state !== ShortcutRecorder.Recorded
            text: qsTr("Remove  ⌫")
            Accessible.name: qsTr("Remove Shortcut")
            onClicked: root.recorder.remove()
        }
        Action {
            objectName: "endRecording"
            text: root.recorder.state === ShortcutRecorder.Recorded ? qsTr("Done  esc") : qsTr("Cancel  esc")
            onClicked: root.recorder.end()
        }
    }
}
