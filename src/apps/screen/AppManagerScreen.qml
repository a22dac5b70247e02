// A Loader of Qt 6.4 makes no bound component, and qmllint knows the ids of an unbound one only as unqualified.
// qmllint disable unqualified
import QtQuick
import Quillmere

// The App Manager: head, the two lists behind their tabs, what is in the pane beside them, and what is ticked.
FocusScope {
    id: screen

    required property AppManagerView view

    KeyboardHeir {
        screen: screen
        commands: header.scanCommands
        list: lists.rows
    }
    AppHeader {
        id: header
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: Theme.unit * 5
        view: screen.view
    }
    AppToolbar {
        id: toolbar
        anchors.left: header.left
        anchors.right: header.right
        anchors.top: header.bottom
        anchors.topMargin: Theme.unit * 3
        view: screen.view
    }
    Item {
        id: body
        anchors.left: header.left
        anchors.right: header.right
        anchors.top: toolbar.bottom
        anchors.topMargin: Theme.unit * 3
        anchors.bottom: foot.top
        anchors.bottomMargin: Theme.unit * 3

        AppListCard {
            id: lists
            anchors.left: parent.left
            anchors.right: pane.left
            anchors.rightMargin: Theme.unit * 3
            anchors.top: parent.top
            anchors.bottom: parent.bottom
            view: screen.view
        }
        AppPane {
            id: pane
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.bottom: parent.bottom
            width: Math.max(340, Math.min(480, Math.round(parent.width * 0.36)))
            view: screen.view
        }
    }
    AppFoot {
        id: foot
        anchors.left: header.left
        anchors.right: header.right
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.unit * 5
        view: screen.view
    }
    Loader {
        active: screen.view.sheet.isUp
        sourceComponent: AppUninstallSheet {
            view: screen.view
        }
    }
    Loader {
        active: screen.view.bulkQuestion.isUp
        sourceComponent: ConfirmDialog {
            title: screen.view.bulkTitle
            text: screen.view.bulkQuestion.text
            cancelLabel: screen.view.texts.cancel
            actionLabel: screen.view.texts.uninstall
            onAccepted: screen.view.bulkQuestion.confirm()
            onRejected: screen.view.bulkQuestion.cancel()
        }
    }
    Loader {
        active: screen.view.ghostQuestion.isUp
        sourceComponent: ConfirmDialog {
            title: screen.view.ghostTitle
            text: screen.view.ghostQuestion.text
            cancelLabel: screen.view.texts.cancel
            actionLabel: screen.view.texts.moveToTrash
            onAccepted: screen.view.ghostQuestion.confirm()
            onRejected: screen.view.ghostQuestion.cancel()
        }
    }
}
