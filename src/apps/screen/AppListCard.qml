import QtQuick
import Quillmere

// The list of the tab on view, or what stands in its place.
Item {
    id: card

    required property AppManagerView view
    readonly property RowList rows: view.isGhostTab ? ghosts.rows : apps.rows

    Card {
        anchors.fill: parent
        visible: !card.view.isSearching
    }
    InstalledAppsList {
        id: apps
        anchors.fill: parent
        visible: !card.view.isGhostTab && rows.count > 0
        enabled: visible // a list that is not on view gets no keys
        focus: true
        view: card.view
    }
    GhostAppsList {
        id: ghosts
        anchors.fill: parent
        visible: card.view.isGhostTab && rows.count > 0
        enabled: visible
        view: card.view
    }
    ScanProgress {
        objectName: "appProgress"
        anchors.fill: parent
        visible: card.view.isSearching
        text: card.view.tabTexts.scanning
    }
    EmptyState {
        anchors.centerIn: parent
        width: parent.width - Theme.unit * 8
        visible: text.length > 0
        symbol: card.view.isGhostTab ? "ghost" : "app.fill"
        text: card.view.emptyText
        detail: card.view.emptyDetail
    }
}
