import QtQuick
import Quillmere

// The context menu of a file of a group.
RowMenu {
    id: menu

    required property DuplicateFinderView view

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
        objectName: "toggleLine"
        text: menu.view.toggleText(menu.row)
        enabled: menu.view.canChoose
        onTriggered: menu.view.toggleKeep(menu.row)
    }
    MenuLine {
        text: menu.view.texts.keepOnly
        enabled: menu.view.canChoose
        onTriggered: menu.view.keepOnly(menu.row)
    }
}
