import QtQuick
import Quillmere

// What becomes of a file.
Rectangle {
    id: pill

    required property string text
    required property string symbol
    required property color tint

    implicitWidth: 82
    implicitHeight: 22
    radius: height / 2
    color: Qt.alpha(tint, 0.14)
    border.color: Qt.alpha(tint, 0.5)

    Row {
        anchors.centerIn: parent
        spacing: Theme.unit
        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: pill.symbol
            size: 11
            color: pill.tint
        }
        CaptionText {
            anchors.verticalCenter: parent.verticalCenter
            text: pill.text
            color: pill.tint
            font.pixelSize: 10
        }
    }
}
