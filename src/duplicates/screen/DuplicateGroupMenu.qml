import QtQuick
import Quillmere

// The context menu of a group's head: what its buttons do, for the keyboard.
RowMenu {
    id: menu

    required property DuplicateFinderView view

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
