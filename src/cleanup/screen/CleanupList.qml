pragma ComponentBehavior: Bound

import QtQuick
import Quillmere

// The categories and, below one that is open, its files. All rows are as high as each other, so that the list knows its
// whole length without having made them.
FocusScope {
    id: holder

    required property SmartCleanupView view
    readonly property RowList rows: list

    readonly property var menus: ({ category: categoryMenu, guide: guideMenu, file: fileMenu, end: endMenu })

    function openMenu(row, item) {
        const menu = menus[view.menuKind(row)];
        if (menu)
            menu.openFor(view.rows, row, item);
    }

    RowList {
        id: list
        objectName: "cleanupList"
        anchors.fill: parent
        model: holder.view.rows
        menuRow: Math.max(categoryMenu.shownRow, guideMenu.shownRow, fileMenu.shownRow, endMenu.shownRow)
        onRowOpened: row => holder.view.open(row)
        onRowToggled: row => holder.view.toggle(row)
        onMenuRequested: (row, item) => holder.openMenu(row, item)
        Accessible.name: holder.view.texts.categories

        delegate: CleanupRow {
            view: holder.view
        }
    }
    Connections {
        target: holder.view
        function onRowsWillChange() {
            list.goToTop();
        }
    }
    RowMenu {
        id: categoryMenu
        MenuLine {
            text: holder.view.previewText(categoryMenu.row)
            onTriggered: holder.view.togglePreview(categoryMenu.row)
        }
        MenuLine {
            text: holder.view.texts.reveal
            onTriggered: holder.view.revealCategory(categoryMenu.row)
        }
    }
    RowMenu {
        id: guideMenu
        MenuLine {
            text: holder.view.texts.selectAll
            enabled: holder.view.canChoose
            onTriggered: holder.view.selectAllFiles(guideMenu.row)
        }
        MenuLine {
            text: holder.view.texts.selectNone
            enabled: holder.view.canChoose
            onTriggered: holder.view.selectNoFiles(guideMenu.row)
        }
    }
    CleanupFileMenu {
        id: fileMenu
        view: holder.view
    }
    CleanupEndMenu {
        id: endMenu
        view: holder.view
    }
}
