import QtQuick
import Quillmere

// A row of a list whose groups are cards: a slice of its group's card, with what lights it inside of that.
ListRow {
    id: row

    required property bool isLast // of its group
    property bool isFirst: false
    property int gap: 0 // above the card, where it is the first
    property bool answersClicks: false

    leftPadding: 0
    rightPadding: 0

    background: Item {
        CardSlice {
            y: row.gap
            width: parent.width
            height: parent.height - y
            isFirst: row.isFirst
            isLast: row.isLast
        }
        RowBackground {
            x: Theme.unit
            y: row.gap + 2
            width: parent.width - Theme.unit * 2
            height: parent.height - y - 2
            isCurrent: row.isCurrent
            isDown: row.down && row.answersClicks
            isHovered: row.hovered && row.answersClicks
            isMenuTarget: row.isMenuTarget
        }
    }
}
