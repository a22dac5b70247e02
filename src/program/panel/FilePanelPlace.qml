import QtQuick
import Quillmere

// One of the usual places.
ListRow {
    id: row

    required property string name
    required property string symbol
    required property bool isHere // the folder on view
    required property string hereText

    text: name
    spoken: hereText
    tip: hovered && label.truncated ? name : ""

    contentItem: Item {
        Symbol {
            id: icon
            anchors.verticalCenter: parent.verticalCenter
            name: row.symbol
            size: 15
            color: row.isHere ? Theme.accent : Theme.secondText
        }
        BodyText {
            id: label
            anchors.left: icon.right
            anchors.leftMargin: Theme.unit * 2
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: row.name
            color: row.isHere ? Theme.accent : Theme.text
        }
    }
}
