pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Quillmere

// The table of what is in the entry on view.
FocusScope {
    id: card

    required property DiskAnalyzerView view

    Card {
        anchors.fill: parent
    }
    CaptionText {
        id: head
        x: Theme.unit * 4
        height: 36
        text: card.view.contentsHeader
    }
    AnalyzerContentsColumns {
        id: columns
        anchors.top: head.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: Theme.unit * 4
        anchors.rightMargin: Theme.unit * 4
        view: card.view
    }
    AnalyzerParentRow {
        id: parentRow
        anchors.top: columns.bottom
        anchors.topMargin: Theme.unit
        anchors.left: list.left
        anchors.right: list.right
        text: card.view.parentRowText
        onClicked: card.view.goBack()
    }
    ListView {
        id: list
        objectName: "contentsList"
        anchors.top: parentRow.bottom
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: Theme.unit * 2
        anchors.topMargin: 0
        clip: true
        focus: true
        boundsBehavior: Flickable.StopAtBounds
        visible: !card.view.isScanningDeeper
        model: card.view.contents
        currentIndex: -1
        // A list that is out of sight keeps the focus for its return, but takes no keys.
        keyNavigationEnabled: visible
        Keys.enabled: visible
        activeFocusOnTab: true

        // Whoever comes by key sees where they are.
        onActiveFocusChanged: {
            if (activeFocus && currentIndex < 0 && count > 0)
                currentIndex = 0;
        }

        function goToTop() {
            currentIndex = -1;
            contentY = 0;
        }
        function take(index) {
            currentIndex = index;
            forceActiveFocus();
        }

        T.ScrollBar.vertical: ScrollHandle { }
        Keys.onReturnPressed: card.view.activateRow(currentIndex)
        Keys.onEnterPressed: card.view.activateRow(currentIndex)
        Keys.onRightPressed: card.view.openRow(currentIndex)
        Keys.onLeftPressed: card.view.goBack()
        Keys.onMenuPressed: menu.openFor(model, currentIndex, currentItem)
        delegate: AnalyzerContentsRow {
            width: ListView.view.width
            isCurrent: ListView.isCurrentItem && list.activeFocus
            revealTip: card.view.texts.reveal
            onClicked: card.view.openRow(index)
            onRevealed: card.view.revealRow(index)
            onMenuRequested: menu.openFor(list.model, index, null)
            onPressed: list.take(index)
        }
    }
    Connections {
        target: card.view
        function onEntryWillChange() {
            list.goToTop();
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
    Row {
        anchors.centerIn: list
        visible: card.view.isScanningDeeper
        spacing: Theme.unit * 2
        Spinner {
            anchors.verticalCenter: parent.verticalCenter
        }
        BodyText {
            text: card.view.texts.loadingContents
            color: Theme.secondText
        }
    }
}
