import QtQuick
import Quillmere

// What a user should know of a group before its files go. Nothing where there is nothing to know.
Rectangle {
    id: mark

    required property string text
    required property string tip
    required property color tint

    visible: text.length > 0
    implicitWidth: label.implicitWidth + Theme.unit * 3
    implicitHeight: 16
    radius: height / 2
    color: Qt.alpha(tint, 0.14)
    border.color: Qt.alpha(tint, 0.5)

    CaptionText {
        id: label
        anchors.centerIn: parent
        text: mark.text
        color: mark.tint
        font.pixelSize: 10
    }
    HoverHandler {
        id: pointer
    }
    Tip {
        control: mark
        isDue: pointer.hovered
        text: mark.tip
    }
}
