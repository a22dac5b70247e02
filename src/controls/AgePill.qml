import QtQuick
import Quillmere

// How old a cached result is.
Pill {
    id: pill

    required property string text
    property string tip
    property list<string> labels // all that it may read in its place: it keeps the room of the widest

    readonly property int rest: icon.width + row.spacing + Theme.unit * 5 // beside the word
    readonly property int heldWidth: labels.length > 0 ? TextRuler.widest(labels, label.font) : 0

    implicitWidth: Math.max(Math.ceil(label.implicitWidth), heldWidth) + rest
    implicitHeight: 22
    color: Theme.raised
    borderColor: Theme.line
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.description: tip

    Row {
        id: row
        anchors.centerIn: parent
        spacing: Theme.unit * 1.5
        Symbol {
            id: icon
            anchors.verticalCenter: parent.verticalCenter
            name: "clock"
            size: 11
        }
        BodyText {
            id: label
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, pill.width - pill.rest)
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
