import QtQuick
import Quillmere

// What one row shows of a card that reaches over several: round only where the card begins and where it ends.
Card {
    required property bool isFirst
    required property bool isLast

    openEdges: (isFirst ? 0 : Qt.TopEdge) | (isLast ? 0 : Qt.BottomEdge)
}
