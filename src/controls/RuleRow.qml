import QtQuick
import Quillmere

// A rule of a list, with a word behind it where it does not do what it says; `hint` tells why.
RemovableRow {
    id: row

    property string suffix // drawn in the colour of a warning, and the rule with it

    readonly property color inkColor: suffix.length > 0 ? Theme.amber : Theme.text

    tint: suffix.length > 0 ? Theme.amber : Theme.secondText
    isCut: rule.truncated
    Accessible.name: RowTexts.inARow([text, suffix])

    BodyText {
        id: rule
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(Math.ceil(implicitWidth), parent.width - suffixText.width - Theme.unit * 2)
        text: row.text
        color: row.inkColor
        elide: Text.ElideMiddle
    }
    BodyText {
        id: suffixText
        anchors.left: rule.right
        anchors.leftMargin: Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        text: row.suffix
        color: row.inkColor
        font.pixelSize: Theme.smallSize
    }
}
