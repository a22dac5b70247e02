import QtQuick
import Quillmere

// A part of a sum: what it is, its share of the whole, and its size.
Item {
    id: row

    required property string label
    required property string sizeText
    required property double share
    property string symbol
    property bool isTotal: false

    implicitHeight: 20
    Accessible.role: Accessible.StaticText
    Accessible.name: RowTexts.figure(label, sizeText)

    Symbol {
        id: icon
        anchors.verticalCenter: parent.verticalCenter
        visible: row.symbol.length > 0
        name: row.symbol
        size: 13
    }
    BodyText {
        id: caption
        x: icon.visible ? icon.width + Theme.unit * 2 : 0
        width: 120 - x
        height: parent.height
        text: row.label
        font.weight: row.isTotal ? Font.DemiBold : Font.Normal
    }
    ShareBar {
        x: 120
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width - x - amount.width - Theme.unit * 2
        visible: !row.isTotal
        share: row.share
    }
    BodyText {
        id: amount
        anchors.right: parent.right
        width: 72
        height: parent.height
        horizontalAlignment: Text.AlignRight
        text: row.sizeText
        font.weight: row.isTotal ? Font.DemiBold : Font.Normal
    }
}
