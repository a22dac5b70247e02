import QtQuick
import Quillmere

// A figure under its label.
Column {
    id: figure

    required property string label
    required property string value
    property color valueColor: Theme.text

    Accessible.role: Accessible.StaticText
    Accessible.name: label + ": " + value
    spacing: 1
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
