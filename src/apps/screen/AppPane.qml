// A Loader of Qt 6.4 makes no bound component, and qmllint knows the ids of an unbound one only as unqualified.
// qmllint disable unqualified
import QtQuick
import Quillmere

// What is told of the row that was chosen, or of all that are ticked.
Item {
    id: pane

    required property AppManagerView view

    Card {
        anchors.fill: parent
    }
    EmptyState {
        objectName: "emptyPane"
        anchors.centerIn: parent
        width: parent.width - Theme.unit * 10
        visible: pane.view.pane === "empty"
        symbol: "cursorarrow.click"
        text: pane.view.tabTexts.paneTitle
        detail: pane.view.tabTexts.paneText
    }
    EmptyState {
        objectName: "bulkPane"
        anchors.centerIn: parent
        width: parent.width - Theme.unit * 10
        visible: pane.view.pane === "bulk"
        symbol: "trash"
        text: pane.view.selectionText
        detail: pane.view.texts.bulkPane
    }
    Loader {
        anchors.fill: parent
        active: pane.view.pane === "app"
        visible: active // or it would keep the keyboard
        sourceComponent: AppDetailPane {
            view: pane.view
        }
    }
    Loader {
        anchors.fill: parent
        active: pane.view.pane === "ghost"
        visible: active
        sourceComponent: GhostDetailPane {
            view: pane.view
        }
    }
}
