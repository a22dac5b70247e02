import QtQuick
import Quillmere

// The context menu of a row of the table.
RowMenu {
    id: menu

    required property DiskAnalyzerView view

    MenuLine {
        objectName: "openLine"
        text: menu.view.openText(menu.row)
        onTriggered: menu.view.activateRow(menu.row)
    }
    MenuLine {
        text: menu.view.texts.reveal
        onTriggered: menu.view.revealRow(menu.row)
    }
    MenuLine {
        text: menu.view.texts.copyPath
        onTriggered: menu.view.copyPath(menu.row)
    }
    MenuLine {
        text: menu.view.texts.openInTerminal
        onTriggered: menu.view.openTerminal(menu.row)
    }
    MenuLine {
        isDivider: true
        enabled: false
    }
    MenuLine {
        objectName: "trashLine"
        text: menu.view.trashText
        enabled: menu.view.canTrash
        onTriggered: menu.view.moveToTrash(menu.row)
    }
}
