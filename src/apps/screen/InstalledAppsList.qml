pragma ComponentBehavior: Bound

import QtQuick
import Quillmere

// The installed applications.
FocusScope {
    id: holder

    required property AppManagerView view
    readonly property RowList rows: list

    RowList {
        id: list
        objectName: "installedList"
        anchors.fill: parent
        anchors.margins: Theme.unit * 2
        anchors.rightMargin: 1 // the scroll handle stands inside of the card's outline
        gutter: Theme.unit * 2 - anchors.rightMargin
        focus: true
        model: holder.view.lists.installed
        menuRow: menu.shownRow
        onRowOpened: row => holder.view.select(row)
        onRowToggled: row => holder.view.toggleTick(row)
        onMenuRequested: (row, item) => menu.openFor(model, row, item)
        Accessible.name: holder.view.texts.installed

        delegate: InstalledAppRow {
            view: holder.view
            onClicked: holder.view.select(index)
            onTicked: holder.view.toggleTick(index)
        }
    }
    Connections {
        target: holder.view.lists
        function onRowsWillChange() {
            list.goToTop();
        }
    }
    RowMenu {
        id: menu
        MenuLine {
            text: holder.view.texts.openApp
            onTriggered: holder.view.openApp(menu.row)
        }
        MenuLine {
            text: holder.view.texts.reveal
            onTriggered: holder.view.revealApp(menu.row)
        }
        MenuLine {
            text: holder.view.texts.copyBundleID
            onTriggered: holder.view.copyBundleID(menu.row)
        }
        MenuLine {
            text: holder.view.texts.copyPath
            onTriggered: holder.view.copyPath(menu.row)
        }
        MenuLine {
            isDivider: true
            enabled: false
        }
        MenuLine {
            text: holder.view.texts.showDetails
            onTriggered: holder.view.select(menu.row)
        }
    }
}
