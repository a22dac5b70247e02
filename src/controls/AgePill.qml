import QtQuick
import Quillmere

// How old a cached result is.
Rectangle {
    id: badge

    required property AgePillView pill

    visible: pill.isShown
    implicitWidth: Math.ceil(row.implicitWidth) + Theme.unit * 5
    implicitHeight: 22
    radius: height / 2
    color: Theme.raised
    border.color: Theme.line
    Accessible.role: Accessible.StaticText
    Accessible.name: pill.text
    Accessible.description: pill.tooltip

    Row {
        id: row
        anchors.centerIn: parent
        spacing: Theme.unit * 1.5
        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: "clock"
            size: 11
        }
        BodyText {
            anchors.verticalCenter: parent.verticalCenter
            text: badge.pill.text
            color: Theme.secondText
            font.pixelSize: Theme.captionSize
        }
    }
    HoverHandler {
        id: pointer
    }
    Tip {
        control: badge
        isDue: pointer.hovered
        text: badge.pill.tooltip
    }
}
