import QtQuick
import Quillmere

// The context menu of the line that tells how many files are shown: what its buttons do, for the keyboard.
RowMenu {
    id: menu

    required property SmartCleanupView view

    MenuLine {
        text: menu.view.moreText(menu.row)
        onTriggered: menu.view.showMore(menu.row)
    }
    MenuLine {
        text: menu.view.allText(menu.row)
        onTriggered: menu.view.showAllFiles(menu.row)
    }
}
