// A Loader of Qt 6.4 makes no bound component, and qmllint knows the ids of an unbound one only as unqualified.
// qmllint disable unqualified
import QtQuick
import Quillmere

// The Duplicate Finder: head, scope, filters and choices, the groups, and what is set to go.
FocusScope {
    id: screen

    required property DuplicateFinderView view

    // Move to Trash rests when its run begins, Start when a scan does, and the list goes.
    KeyboardHeir {
        screen: screen
        commands: header.scanCommands
        list: groups.rows
    }
    DuplicateHeader {
        id: header
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: Theme.unit * 5
        view: screen.view
    }
    AccessBanner {
        id: banner
        anchors.left: header.left
        anchors.right: header.right
        anchors.top: header.bottom
        anchors.topMargin: visible ? Theme.unit * 3 : 0
        banner: screen.view.banner
    }
    DuplicateScopePanel {
        id: panel
        anchors.left: header.left
        anchors.right: header.right
        anchors.top: banner.bottom
        anchors.topMargin: visible ? Theme.unit * 3 : 0
        visible: screen.view.showSettings
        height: visible ? implicitHeight : 0
        isLow: screen.height < 680
        view: screen.view
    }
    DuplicateToolbar {
        id: toolbar
        anchors.left: header.left
        anchors.right: header.right
        anchors.top: panel.bottom
        anchors.topMargin: Theme.unit * 3
        view: screen.view
    }
    Item {
        id: body
        anchors.left: header.left
        anchors.right: header.right
        anchors.top: toolbar.bottom
        anchors.topMargin: Theme.unit * 3
        anchors.bottom: parent.bottom
        // The foot comes and goes with the first and the last choice: it finds its room kept, not a row under the pointer.
        anchors.bottomMargin: Theme.unit * 5 + (screen.view.hasFigures ? foot.implicitHeight + Theme.unit * 3 : 0)

        DuplicateList {
            id: groups
            anchors.fill: parent
            anchors.rightMargin: -Theme.unit * 3 // its scroll bar stands in the margin, and the cards end where all else does
            visible: !screen.view.isScanning && screen.view.hasFigures
            enabled: visible // a list that is not on view gets no keys
            focus: true
            view: screen.view
        }
        ScanProgress {
            objectName: "duplicateProgress"
            anchors.fill: parent
            visible: screen.view.isScanning
            percentText: screen.view.percentText
            share: screen.view.progress
            pathText: screen.view.currentPathText
        }
        EmptyState {
            anchors.centerIn: parent
            width: parent.width
            visible: text.length > 0
            symbol: screen.view.symbol
            text: screen.view.emptyText
        }
    }
    DuplicateFoot {
        id: foot
        anchors.left: header.left
        anchors.right: header.right
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.unit * 5
        view: screen.view
    }
    Loader {
        active: screen.view.confirmation.isUp
        sourceComponent: ConfirmDialog {
            title: screen.view.texts.confirmTitle
            text: screen.view.confirmation.text
            note: screen.view.confirmation.note
            cancelLabel: screen.view.texts.cancel
            actionLabel: screen.view.texts.moveToTrash
            onAccepted: screen.view.confirmation.confirm()
            onRejected: screen.view.confirmation.cancel()
        }
    }
}
