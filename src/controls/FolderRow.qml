import QtQuick
import Quillmere

// A folder that a tool works on. A click is to change it, which `hint` tells; a path that is cut is told whole above it.
RemovableRow {
    id: row

    property string detail // at the right of the path

    symbol: "folder.fill"
    tint: Theme.accent
    isCut: path.truncated
    spoken: RowTexts.told(detail, hint)
    removeButton.symbol: "xmark.circle.fill"
    removeButton.symbolSize: 13

    BodyText {
        id: path
        anchors.left: parent.left
        anchors.right: detailText.left
        anchors.verticalCenter: parent.verticalCenter
        text: row.text
        elide: Text.ElideMiddle
    }
    BodyText {
        id: detailText
        anchors.right: parent.right
        anchors.rightMargin: Theme.unit * 2
        anchors.verticalCenter: parent.verticalCenter
        leftPadding: text.length > 0 ? Theme.unit * 2 : 0
        text: row.detail
        color: Theme.secondText
        font.pixelSize: Theme.smallSize
    }
}
