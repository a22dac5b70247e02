import QtQuick
import Quillmere

// The head of a section of a pane, with what can be done with the section at its right.
Item {
    id: head

    required property string text
    default property alias commands: commandRow.data

    implicitHeight: 24

    CaptionText {
        anchors.left: parent.left
        anchors.right: commandRow.left
        height: parent.height
        text: head.text
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    Row {
        id: commandRow
        anchors.right: parent.right
        anchors.rightMargin: -Theme.unit // a word of its own room ends where all else does
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.unit
    }
}
