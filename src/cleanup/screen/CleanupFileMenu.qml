import QtQuick
import Quillmere

// The context menu of a file of a preview.
RowMenu {
    id: menu

    required property SmartCleanupView view

    MenuLine {
        text: menu.view.texts.open
        onTriggered: menu.view.openFile(menu.row)
    }
    MenuLine {
        text: menu.view.texts.reveal
        onTriggered: menu.view.revealFile(menu.row)
    }
    MenuLine {
        text: menu.view.texts.copyPath
        onTriggered: menu.view.copyPath(menu.row)
    }
    MenuLine {
        isDivider: true
        enabled: false
    }
    MenuLine {
        text: menu.view.toggleText(menu.row)
        enabled: menu.view.canChoose
        onTriggered: menu.view.toggleFile(menu.row)
    }
}
