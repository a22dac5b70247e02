pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Quillmere

// The groups and their files, one below the other. All rows are as high as each other, so that the list knows its whole
// length without having made them.
FocusScope {
    id: holder

    required property DuplicateFinderView view

    ListView {
        id: list
        objectName: "duplicateList"
        anchors.fill: parent
        clip: true
        focus: true
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        reuseItems: true
        model: holder.view.rows
        currentIndex: -1
        keyNavigationEnabled: true

        // Whoever comes by key sees where they are.
        onActiveFocusChanged: {
            if (activeFocus && currentIndex < 0 && count > 0)
                currentIndex = 0;
        }

        function openMenu(index, item) {
            const menu = holder.view.isFile(index) ? fileMenu : groupMenu;
            menu.openFor(holder.view.rows, index, item);
        }

        // The current row and the place of the view, while the rows are made anew.
        property int heldRow: -1
        property real heldTop: 0
        property real heldHeight: 0

        function holdPlace() {
            heldRow = currentIndex;
            heldTop = contentY - originY;
            heldHeight = contentHeight / Math.max(count, 1); // of each row
        }
        function takePlace() {
            const topRow = Math.floor(heldTop / heldHeight);
            currentIndex = holder.view.rows.rowNow(heldRow);
            if (heldHeight === 0) // there were no rows
                return;
            forceLayout();
            contentY = originY + heldTop + (holder.view.rows.rowNow(topRow) - topRow) * heldHeight;
            returnToBounds();
        }

        T.ScrollBar.vertical: ScrollHandle { }
        Keys.onReturnPressed: holder.view.toggleKeep(currentIndex)
        Keys.onEnterPressed: holder.view.toggleKeep(currentIndex)
        Keys.onSpacePressed: holder.view.toggleKeep(currentIndex)
        Keys.onMenuPressed: openMenu(currentIndex, currentItem)
        delegate: DuplicateRow {
            id: row
            width: ListView.view.width - Theme.unit * 3
            view: holder.view
            isCurrent: ListView.isCurrentItem && list.activeFocus
            onTaken: {
                list.currentIndex = row.index;
                list.forceActiveFocus();
            }
            onMenuRequested: list.openMenu(row.index, null)
        }
    }
    Connections {
        target: holder.view
        function onRowsWillChange() {
            list.currentIndex = -1;
            list.contentY = 0;
        }
    }
    Connections {
        target: holder.view.rows
        function onModelAboutToBeReset() {
            list.holdPlace();
        }
        function onTakenAnew() {
            list.takePlace();
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
