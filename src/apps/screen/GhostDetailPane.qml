// A list of Qt 6.4 makes no bound head, and qmllint knows the ids of an unbound one only as unqualified.
// qmllint disable unqualified
import QtQuick
import Quillmere

// One ghost: what it is, and its files, any of which may stay. The head scrolls with the files.
FocusScope {
    id: pane

    required property AppManagerView view

    RowList {
        id: list
        objectName: "ghostFiles"
        anchors.left: parent.left
        anchors.leftMargin: Theme.unit * 2
        anchors.right: parent.right
        anchors.rightMargin: 1 // the scroll handle stands inside of the card's outline
        anchors.top: parent.top
        anchors.topMargin: 1
        anchors.bottom: foot.top
        gutter: Theme.unit * 2 - anchors.rightMargin
        focus: true
        model: pane.view.ghostDetail.files
        menuRow: menu.shownRow
        onRowOpened: row => pane.view.toggleFile(row)
        onRowToggled: row => pane.view.toggleFile(row)
        onMenuRequested: (row, item) => menu.openFor(model, row, item)
        Accessible.name: pane.view.texts.files

        header: GhostDetailHead {
            width: list.rowWidth
            view: pane.view
        }
        delegate: AppFileRow {
            canChoose: pane.view.canChoose
            onClicked: pane.view.toggleFile(index)
        }
    }
    RowMenu {
        id: menu
        MenuLine {
            text: pane.view.texts.showInFinder
            onTriggered: pane.view.revealFile(menu.row)
        }
    }
    AppPaneFoot {
        id: foot
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        text: pane.view.texts.ghostFoot
        action.objectName: "removeFilesButton"
        action.enabled: pane.view.canRemoveFiles
        action.text: pane.view.ghostDetail.removeText
        onActed: pane.view.removeFiles()
    }
}
