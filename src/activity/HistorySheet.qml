// A Loader of Qt 6.4 makes no bound component, and qmllint knows the ids of an unbound one only as unqualified.
// qmllint disable unqualified
import QtQuick
import Quillmere

// The activity log: filters, entries, and what can be done with the log as a whole.
SheetFrame {
    id: sheet

    required property HistoryView view

    title: view.title
    symbol: view.symbol
    summary: view.countText
    closeLabel: view.texts.close
    isCovered: view.showClearConfirm
    onOpened: list.takeFirstInView()

    tools: [
        ActionButton {
            objectName: "revealHistory"
            enabled: sheet.view.canReveal
            text: sheet.view.texts.reveal
            symbol: "arrow.up.right.square"
            tip: sheet.view.revealTip
            Accessible.description: sheet.view.revealTip
            onClicked: sheet.view.reveal()
        },
        ActionButton {
            objectName: "clearHistory"
            visible: sheet.view.canClear
            text: sheet.view.texts.clear
            symbol: "trash"
            tip: sheet.view.showClearConfirm ? "" : sheet.view.texts.clearTip
            onClicked: sheet.view.askToClear()
        }
    ]

    ChipRow {
        id: chips
        x: Theme.unit * 5
        y: Theme.unit * 3
        width: parent.width - Theme.unit * 10
        doesWrap: true
        label: sheet.view.texts.filters
        model: sheet.view.filters
        onChosen: index => sheet.view.chooseFilter(index)
    }
    RowList {
        id: list
        objectName: "historyList"
        anchors.top: chips.bottom
        anchors.topMargin: Theme.unit * 3
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.unit
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: Theme.unit * 3
        anchors.rightMargin: Theme.unit * 3 - gutter
        spacing: Theme.unit
        model: sheet.view.rows
        onRowOpened: row => sheet.view.toggleRow(row)
        onRowToggled: row => sheet.view.toggleRow(row)
        Accessible.name: sheet.view.title

        // A new entry comes in above the first row; a reader who has not scrolled sees it.
        property bool isAtTop: true
        onContentYChanged: isAtTop = atYBeginning
        onCountChanged: if (isAtTop) positionViewAtBeginning()

        delegate: HistoryRow {
            view: sheet.view
            onDetailsToggled: sheet.view.toggleRow(index)
        }
    }
    EmptyState {
        anchors.centerIn: list
        width: list.width
        visible: text.length > 0
        symbol: sheet.view.symbol
        text: sheet.view.emptyText
    }
    Loader {
        active: sheet.view.showClearConfirm
        sourceComponent: ConfirmDialog {
            title: sheet.view.texts.confirmTitle
            text: sheet.view.texts.confirmText
            cancelLabel: sheet.view.texts.cancel
            actionLabel: sheet.view.texts.clear
            onAccepted: sheet.view.confirmClear()
            onRejected: sheet.view.cancelClear()
        }
    }
}
