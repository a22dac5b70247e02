import QtQuick
import Quillmere

// The context menu of a row of the table.
PopupMenu {
    id: menu

    required property DiskAnalyzerView view
    property int row: -1

    // For the row with that number, near `item` where a key has asked for it.
    function openAt(index, item) {
        if (index < 0)
            return;
        row = index;
        openLine.text = view.openText(index); // what stands in that row now
        openNear(item);
    }

    MenuLine {
        id: openLine
        objectName: "openLine"
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
