import QtQuick
import Quillmere

// How old a cached result is.
Rectangle {
    id: pill

    required property string text
    required property string tip

    implicitWidth: row.implicitWidth + Theme.unit * 5
    implicitHeight: 22
    radius: height / 2
    color: Theme.raised
    border.color: Theme.line
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.description: tip

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
            text: pill.text
            color: Theme.secondText
            font.pixelSize: Theme.captionSize
        }
    }
    HoverHandler {
        id: pointer
    }
    Tip {
        control: pill
        isDue: pointer.hovered
        text: pill.tip
    }
}
