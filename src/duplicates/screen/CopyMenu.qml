import QtQuick
import Quillmere

// The context menu of a file of a group.
PopupMenu {
    id: menu

    required property DuplicateFinderView view
    property int row: -1

    // For the row with that number, near `item` where a key has asked for it.
    function openAt(index, item) {
        row = index;
        toggleLine.text = view.toggleText(index); // what holds of that row now
        openNear(item);
    }

    MenuLine {
        text: menu.view.texts.open
        onTriggered: menu.view.open(menu.row)
    }
    MenuLine {
        text: menu.view.texts.quickLook
        onTriggered: menu.view.quickLook(menu.row)
    }
    MenuLine {
        text: menu.view.texts.reveal
        onTriggered: menu.view.reveal(menu.row)
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
        id: toggleLine
        objectName: "toggleLine"
        enabled: menu.view.canChoose
        onTriggered: menu.view.toggleKeep(menu.row)
    }
    MenuLine {
        text: menu.view.texts.keepOnly
        enabled: menu.view.canChoose
        onTriggered: menu.view.keepOnly(menu.row)
    }
}
