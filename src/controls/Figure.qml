import QtQuick
import Quillmere

// A figure under its label. It keeps the room of a usual one, so that its neighbours stay where they are while it grows.
Item {
    id: figure

    required property string label
    required property string value
    property color valueColor: Theme.text
    property int leastWidth: Theme.unit * 12

    implicitWidth: Math.max(Math.ceil(Math.max(caption.implicitWidth, amount.implicitWidth)), leastWidth)
    implicitHeight: amount.y + amount.height
    Accessible.role: Accessible.StaticText
    Accessible.name: RowTexts.figure(label, value)

    CaptionText {
        id: caption
        width: parent.width
        text: figure.label
    }
    BodyText {
        id: amount
        anchors.top: caption.bottom
        anchors.topMargin: 1
        width: parent.width
        text: figure.value
        color: figure.valueColor
        font.pixelSize: 15
        font.weight: Font.DemiBold
    }
}
