import QtQuick
import Quillmere

// A figure under its label. It keeps the room of a usual one, so that its neighbours stay where they are while it grows.
Column {
    id: figure

    required property string label
    required property string value
    property color valueColor: Theme.text
    property int leastWidth: Theme.unit * 12

    width: Math.max(Math.ceil(implicitWidth), leastWidth)
    spacing: 1
    Accessible.role: Accessible.StaticText
    Accessible.name: label + ": " + value

    CaptionText {
        text: figure.label
    }
    BodyText {
        text: figure.value
        color: figure.valueColor
        font.pixelSize: 15
        font.weight: Font.DemiBold
    }
}
