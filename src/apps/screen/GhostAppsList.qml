pragma ComponentBehavior: Bound

import QtQuick
import Quillmere

// What gone applications have left behind, a row for each of them.
FocusScope {
    id: holder

    required property AppManagerView view
    readonly property RowList rows: list

    RowList {
        id: list
        objectName: "ghostList"
        anchors.fill: parent
        anchors.margins: Theme.unit * 2
        anchors.rightMargin: 1 // the scroll handle stands inside of the card's outline
        gutter: Theme.unit * 2 - anchors.rightMargin
        focus: true
        model: holder.view.lists.ghosts
        onRowOpened: row => holder.view.select(row)
        onRowToggled: row => holder.view.toggleTick(row)
        Accessible.name: holder.view.texts.ghostFiles

        delegate: GhostAppRow {
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
}
