import QtQuick
import Quillmere

// What is being waited for, in the place where it will stand or beside the command that stops it.
Row {
    id: line

    required property string text
    property bool hasSpinner: true // there is one at a time on view
    property int size: 15

    spacing: Theme.unit * 2
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Spinner {
        anchors.verticalCenter: parent.verticalCenter
        visible: line.hasSpinner
        size: line.size
    }
    BodyText {
        anchors.verticalCenter: parent.verticalCenter
        width: Math.ceil(implicitWidth)
        text: line.text
        color: Theme.secondText
    }
}
