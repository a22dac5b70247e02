pragma ComponentBehavior: Bound

import QtQuick
import Quillmere

// The table of what is in the entry on view.
FocusScope {
    id: card

    required property DiskAnalyzerView view
    readonly property RowList rows: list

    Card {
        anchors.fill: parent
    }
    CaptionText {
        id: head
        x: Theme.unit * 4
        height: 36
        text: card.view.contentsHeader
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    AnalyzerContentsColumns {
        id: titles
        anchors.top: head.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: Theme.unit * 4
        anchors.rightMargin: Theme.unit * 4
        view: card.view
    }
    AnalyzerParentRow {
        id: parentRow
        anchors.top: titles.bottom
        anchors.topMargin: Theme.unit
        x: list.x
        width: list.rowWidth
        text: card.view.parentRowText
        onClicked: card.view.goBack()
    }
    RowList {
        id: list
        objectName: "contentsList"
        anchors.top: parentRow.bottom
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.unit * 2
        anchors.left: parent.left
        anchors.leftMargin: Theme.unit * 2
        anchors.right: parent.right
        anchors.rightMargin: 1 // the scroll handle stands inside of the card's outline
        gutter: Theme.unit * 2 - anchors.rightMargin
        visible: !card.view.isScanningDeeper
        model: card.view.contents
        menuRow: menu.shownRow
        onRowOpened: row => card.view.activateRow(row)
        onRowToggled: row => card.view.openRow(row)
        onMenuRequested: (row, item) => menu.openFor(model, row, item)
        Keys.onRightPressed: card.view.openRow(currentIndex)
        Keys.onLeftPressed: card.view.goBack()
        Accessible.name: card.view.contentsHeader

        delegate: AnalyzerContentsRow {
            columns: titles
            revealTip: card.view.texts.reveal
            onClicked: card.view.openRow(index)
            onRevealed: card.view.revealRow(index)
        }
    }
    Connections {
        target: card.view
        function onEntryWillChange() {
            list.goToTop();
        }
        function onWentBack(row) {
            list.goOnAt(row);
        }
    }
    AnalyzerContentsMenu {
        id: menu
        view: card.view
    }
    EmptyState {
        anchors.centerIn: list
        width: list.width
        visible: card.view.isEmptyDirectory
        symbol: "folder"
        text: card.view.texts.emptyDirectory
    }
    LoadingLine {
        anchors.centerIn: list
        visible: card.view.isScanningDeeper
        text: card.view.texts.loadingContents
    }
}
