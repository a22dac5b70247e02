import QtQuick
import Quillmere

// What one row shows of a card that reaches over several: round only where the card begins and where it ends.
Item {
    id: slice

    required property bool isFirst
    required property bool isLast

    Card {
        anchors.fill: parent
        visible: slice.isFirst || slice.isLast
    }
    Rectangle {
        y: slice.isFirst ? Theme.cardRadius : 0
        width: parent.width
        height: parent.height - y - (slice.isLast ? Theme.cardRadius : 0)
        color: Theme.line
        Rectangle {
            x: 1
            width: parent.width - 2
            height: parent.height
            color: Theme.card
        }
    }
}
