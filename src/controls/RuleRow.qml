import QtQuick
import Quillmere

// A rule of a list, with a word behind it where it does not do what it says, and a button to take it out.
Item {
    id: row

    required property string text
    required property string symbol
    property string suffix // drawn in the colour of a warning, and the rule with it
    required property string tip
    required property bool canBeRemoved
    property string removeTip
    property alias removeButton: remove

    signal removed

    readonly property color inkColor: suffix.length > 0 ? Theme.amber : Theme.text

    implicitHeight: Theme.controlHeight
    Accessible.role: Accessible.ListItem
    Accessible.name: RowTexts.inARow([text, suffix])
    Accessible.description: tip

    Pill {
        anchors.fill: parent
        radius: Theme.controlRadius
        color: pointer.hovered ? Theme.hover : "transparent"
    }
    Symbol {
        id: icon
        anchors.left: parent.left
        anchors.leftMargin: Theme.unit * 2
        anchors.verticalCenter: parent.verticalCenter
        name: row.symbol
        size: 13
        color: row.suffix.length > 0 ? Theme.amber : Theme.secondText
    }
    BodyText {
        id: rule
        anchors.left: icon.right
        anchors.leftMargin: Theme.unit * 2
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, row.width - icon.width - remove.width - suffixText.implicitWidth - Theme.unit * 6)
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
    IconButton {
        id: remove
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: row.canBeRemoved
        symbol: "xmark"
        symbolSize: 12
        label: row.removeTip
        tip: row.removeTip
        onClicked: row.removed()
    }
    HoverHandler {
        id: pointer
    }
    Tip {
        control: row
        isDue: pointer.hovered && !remove.hovered
        text: RowTexts.lines([rule.truncated ? row.text : "", row.tip])
    }
}
