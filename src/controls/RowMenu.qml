import QtQuick
import Quillmere

// The context menu of a row of a list. It holds the row for which it was opened, wherever that moves, and closes when the
// row goes. Its lines act on `row`; the list marks `shownRow`.
PopupMenu {
    id: menu

    title: RowTexts.menuName() // for assistive technology

    property alias row: target.row
    readonly property int shownRow: visible ? row : -1

    // For that row of the model, near `item` where a key has asked for it and at the pointer where a click has.
    function openFor(model, index, item) {
        target.take(model, index);
        if (row >= 0)
            openNear(item);
    }

    RowTarget {
        id: target
        onLost: menu.close()
    }
}
