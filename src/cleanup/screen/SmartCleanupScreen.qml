// A Loader of Qt 6.4 makes no bound component, and qmllint knows the ids of an unbound one only as unqualified.
// qmllint disable unqualified
import QtQuick
import Quillmere

// Smart Cleanup: head, the categories with their previews, and what is about to be cleaned.
FocusScope {
    id: screen

    required property SmartCleanupView view

    // Clean rests when its run begins, Rescan when a scan does, and a list goes once the system is clean.
    KeyboardHeir {
        screen: screen
        commands: header.scanCommands
        list: list.rows
    }
    CleanupHeader {
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
    Item {
        id: body
        anchors.left: header.left
        anchors.right: header.right
        anchors.top: banner.bottom
        anchors.topMargin: Theme.unit * 2
        anchors.bottom: parent.bottom
        // The foot comes and goes with the first and the last tick: it finds its room kept, not a row under the pointer.
        anchors.bottomMargin: Theme.unit * 5 + (screen.view.hasList ? foot.implicitHeight + Theme.unit * 3 : 0)

        CleanupList {
            id: list
            anchors.fill: parent
            anchors.rightMargin: -Theme.unit * 3 // its scroll bar stands in the margin, and the cards end where all else does
            visible: screen.view.hasList
            enabled: visible // a list that is not on view gets no keys
            focus: true
            view: screen.view
        }
        ScanProgress {
            objectName: "cleanupProgress"
            anchors.fill: parent
            anchors.topMargin: Theme.unit * 2 // where the first card of the list begins
            visible: screen.view.isSearching
            text: screen.view.texts.scanningText
            pathText: screen.view.texts.scanningDetail
        }
        EmptyState {
            anchors.centerIn: parent
            width: parent.width
            visible: text.length > 0
            symbol: "sparkles"
            text: screen.view.emptyText
            detail: screen.view.emptyDetail
        }
    }
    FootBar {
        id: foot
        objectName: "cleanupFoot"
        anchors.left: header.left
        anchors.right: header.right
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.unit * 5
        visible: screen.view.hasSelected || screen.view.isCleaning
        isBusy: screen.view.isCleaning
        symbol: "sparkles"
        text: screen.view.footText
        action.objectName: "cleanButton"
        action.enabled: screen.view.canClean
        action.text: screen.view.cleanText
        action.symbol: "trash.fill"
        action.isBusy: screen.view.isCleaning
        action.isDestructive: true
        onActed: screen.view.askToClean()
    }
    Loader {
        active: screen.view.confirmation.isUp
        sourceComponent: ConfirmDialog {
            title: screen.view.texts.confirmTitle
            text: screen.view.confirmation.text
            cancelLabel: screen.view.texts.cancel
            actionLabel: screen.view.confirmText
            onAccepted: screen.view.confirmation.confirm()
            onRejected: screen.view.confirmation.cancel()
        }
    }
}
