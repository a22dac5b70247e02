import QtQuick
import Quillmere

// An entry of the folder on view.
ListRow {
    id: row

    required property string name
    required property string symbol
    required property bool isFolder

    text: name
    tip: hovered && label.truncated ? name : ""

    contentItem: Item {
        Symbol {
            id: icon
            anchors.verticalCenter: parent.verticalCenter
            name: row.symbol
            size: 15
            color: row.isFolder ? Theme.accent : Theme.secondText
        }
        BodyText {
            id: label
            anchors.left: icon.right
            anchors.leftMargin: Theme.unit * 2
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: row.name
        }
    }
}
