pragma ComponentBehavior: Bound

import QtQuick
import Quillmere

// The entries of the folder on view, or why there are none.
FocusScope {
    id: area

    required property FilePanelView view

    Keys.onPressed: event => event.accepted = area.view.takeKey(event.key, event.modifiers, event.text)

    RowList {
        id: list
        objectName: "panelList"
        anchors.left: parent.left
        anchors.leftMargin: Theme.unit * 2
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: note.top
        focus: true
        beginsByKey: false // a row that is current is chosen, and until then it is the folder on view
        model: area.view.rows
        onCurrentIndexChanged: area.view.select(currentIndex)
        onRowOpened: row => area.view.openRow(row)
        onRowToggled: area.view.takeKey(Qt.Key_Space, Qt.NoModifier, " ")
        Accessible.name: area.view.texts.entries
        delegate: FilePanelRow {
            id: entry
            onPressed: area.view.press(entry.index)
            onDoubleClicked: area.view.openPressedTwice(entry.index)
        }
    }
    BodyText {
        id: note
        objectName: "panelNote"
        anchors.left: list.left
        anchors.leftMargin: Theme.unit * 2
        anchors.right: parent.right
        anchors.rightMargin: Theme.unit * 5
        anchors.bottom: parent.bottom
        height: visible ? Theme.rowHeight : 0
        visible: text.length > 0
        text: area.view.cutShortText
        color: Theme.amber
    }
    Connections {
        target: area.view
        function onListed() {
            list.goToTop();
        }
        function onKept(row) {
            list.currentIndex = row;
        }
        function onFound(row) {
            list.goTo(row);
        }
    }
    EmptyState {
        anchors.centerIn: parent
        width: parent.width
        visible: text.length > 0
        symbol: area.view.emptySymbol
        text: area.view.emptyText
    }
    LoadingLine {
        anchors.centerIn: parent
        visible: area.view.isSlow
        text: area.view.texts.loading
    }
}
