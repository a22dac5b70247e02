pragma ComponentBehavior: Bound

import QtQuick
import Quillmere

// The groups and their files, one below the other. All rows are as high as each other, so that the list knows its whole
// length without having made them.
FocusScope {
    id: holder

    required property DuplicateFinderView view
    readonly property RowList rows: list

    function openMenu(row, item) {
        const menu = view.isFile(row) ? fileMenu : groupMenu;
        menu.openFor(view.rows, row, item);
    }

    RowList {
        id: list
        objectName: "duplicateList"
        anchors.fill: parent
        anchors.topMargin: -Theme.unit * 1.5 // the gap above the first card, which begins where all else does
        model: holder.view.rows
        menuRow: Math.max(fileMenu.shownRow, groupMenu.shownRow)
        onRowOpened: row => holder.view.toggleKeep(row)
        onRowToggled: row => holder.view.toggleKeep(row)
        onMenuRequested: (row, item) => holder.openMenu(row, item)
        Accessible.name: holder.view.texts.groups

        delegate: DuplicateRow {
            view: holder.view
        }
    }
    Connections {
        target: holder.view
        function onRowsWillChange() {
            list.goToTop();
        }
    }
    Connections {
        target: holder.view.rows
        function onModelAboutToBeReset() {
            list.holdPlace();
        }
        function onTakenAnew() {
            list.takePlace(row => holder.view.rows.rowNow(row));
        }
    }
    DuplicateFileMenu {
        id: fileMenu
        view: holder.view
    }
    DuplicateGroupMenu {
        id: groupMenu
        view: holder.view
    }
}
