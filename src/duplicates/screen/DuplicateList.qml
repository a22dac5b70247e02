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

        function closeMenus() {
            copyMenu.close();
            groupMenu.close();
        }
        function openMenu(index, item) {
            if (holder.view.isFile(index))
                copyMenu.openAt(index, item);
            else if (index >= 0)
                groupMenu.openAt(index, item);
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
    // A menu is for the row that it was opened on; numbers of rows change when some go.
    Connections {
        target: holder.view.rows
        function onRowsAboutToBeRemoved() {
            list.closeMenus();
        }
        function onModelAboutToBeReset() {
            list.closeMenus();
        }
    }
    CopyMenu {
        id: copyMenu
        view: holder.view
    }
    GroupMenu {
        id: groupMenu
        view: holder.view
    }
}
