import QtQuick
import Quillmere

// What is ticked, and what the last removal came to. Both come and go, and find room kept for one of them; only where both are
// there the lists get shorter, at their end, so that no row moves.
Item {
    id: foot

    required property AppManagerView view

    readonly property int gap: banner.visible && bar.visible ? Theme.unit * 3 : 0

    implicitHeight: Math.max(Theme.unit * 13, banner.height + gap + bar.height)

    ResultLine {
        id: banner
        objectName: "appBanner"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: bar.top
        anchors.bottomMargin: foot.gap
        height: implicitHeight
        visible: foot.view.banner.isUp
        text: foot.view.banner.title
        detail: foot.view.banner.detail
        tone: foot.view.banner.isSuccess ? ResultLine.Success : ResultLine.Failure
        dismissLabel: foot.view.banner.hasRetry ? foot.view.texts.dismiss : "" // the others go by themselves
        onDismissed: foot.view.dismissBanner()
        ActionButton {
            objectName: "retryButton"
            visible: foot.view.banner.hasRetry
            enabled: foot.view.canChoose
            text: foot.view.texts.retry
            tip: foot.view.texts.retryNote
            symbol: "lock.open.fill"
            onClicked: foot.view.retry()
        }
        ActionButton {
            objectName: "revealFailedButton"
            visible: foot.view.banner.hasRetry
            text: foot.view.texts.reveal
            tip: foot.view.texts.revealNote
            symbol: "folder"
            onClicked: foot.view.revealFailed()
        }
    }
    FootBar {
        id: bar
        objectName: "appFoot"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        visible: foot.view.hasSelection
        symbol: foot.view.isGhostTab ? "ghost" : "app.fill"
        text: foot.view.selectionText
        action.objectName: "removeSelectedButton"
        action.enabled: foot.view.canRemoveSelected
        action.text: foot.view.selectionAction
        action.symbol: "trash.fill"
        action.isDestructive: true
        onActed: foot.view.askToRemoveSelected()

        ActionButton {
            objectName: "clearSelectionButton"
            visible: !foot.view.isGhostTab
            enabled: foot.view.canChoose
            text: foot.view.texts.clearSelection
            onClicked: foot.view.clearSelection()
        }
    }
}
