import QtQuick
import Quillmere

// One entry of the table. A click goes into a folder; the rest is in its menu.
ListRow {
    id: row

    required property string symbol
    required property string entryName
    required property string sizeText
    required property string shareText
    required property string spokenText
    required property double share
    required property bool isFolder
    required property string revealTip
    required property AnalyzerContentsColumns columns

    signal revealed

    text: entryName
    spoken: spokenText
    tip: hovered && !reveal.hovered && name.truncated ? entryName : ""

    contentItem: Item {
        Symbol {
            id: icon
            height: parent.height
            name: row.symbol
            size: 15
            color: row.isFolder ? Theme.accent : Theme.secondText
        }
        BodyText {
            id: name
            x: icon.width + Theme.unit * 2.5
            width: size.x - x
            height: parent.height
            text: row.entryName
            elide: Text.ElideMiddle
        }
        BodyText {
            id: size
            x: row.columns.nameWidth
            width: row.columns.sizeWidth
            height: parent.height
            horizontalAlignment: Text.AlignRight
            text: row.sizeText
        }
        ShareBar {
            x: size.x + size.width + Theme.unit * 6
            y: (parent.height - height) / 2
            width: percent.x - x - Theme.unit * 2
            share: row.share
        }
        BodyText {
            id: percent
            x: size.x + size.width + row.columns.shareWidth - width
            width: 48
            height: parent.height
            horizontalAlignment: Text.AlignRight
            text: row.shareText
            color: Theme.secondText
            font.pixelSize: Theme.smallSize
        }
        IconButton {
            id: reveal
            x: percent.x + percent.width
            y: (parent.height - height) / 2
            width: row.columns.buttonWidth
            symbol: "arrow.up.right.square"
            symbolSize: 13
            label: row.revealTip
            tip: row.revealTip
            focusPolicy: Qt.NoFocus
            opacity: row.hovered || row.isCurrent ? 1 : 0
            onClicked: row.revealed()
        }
    }
}
