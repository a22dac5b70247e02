import QtQuick
import Quillmere

// The context menu of a row of the table.
PopupMenu {
    id: menu

    required property DiskAnalyzerView view
    property int row: -1

    function openAt(index) {
        if (index < 0)
            return;
        row = index;
        openLine.text = view.openText(index); // what stands in that row now
        popup();
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
}
