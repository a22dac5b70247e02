import QtQuick
import Quillmere

// The context menu of a group's head: what its buttons do, for the keyboard.
PopupMenu {
    id: menu

    required property DuplicateFinderView view
    property int row: -1

    // For the row with that number, near `item` where a key has asked for it.
    function openAt(index, item) {
        row = index;
        openNear(item);
    }

    MenuLine {
        text: menu.view.texts.newest
        enabled: menu.view.canChoose
        onTriggered: menu.view.keepNewestOf(menu.row)
    }
    MenuLine {
        text: menu.view.texts.oldest
        enabled: menu.view.canChoose
        onTriggered: menu.view.keepOldestOf(menu.row)
    }
}
