pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Quillmere

// Asks before one application goes, with the list of its files. It stands until the removal has ended.
DialogFrame {
    id: dialog

    required property AppManagerView view
    readonly property UninstallSheet sheet: view.sheet

    readonly property int rowsInView: 5

    width: 480
    title: sheet.title
    text: view.texts.sheetMessage
    closePolicy: sheet.isBusy ? T.Popup.NoAutoClose : T.Popup.CloseOnEscape
    onOpened: cancelButton.forceActiveFocus(Qt.TabFocusReason)
    onClosed: sheet.cancel()

    AppSectionHead {
        width: parent.width
        visible: dialog.sheet.hasFiles
        text: dialog.view.texts.associatedFiles
        LinkButton {
            objectName: "sheetSelectAll"
            enabled: !dialog.sheet.isBusy
            text: dialog.view.texts.selectAll
            onClicked: dialog.sheet.selectAll()
        }
        LinkButton {
            objectName: "sheetSelectNone"
            enabled: !dialog.sheet.isBusy
            text: dialog.view.texts.selectNone
            onClicked: dialog.sheet.selectNone()
        }
    }
    Item {
        width: parent.width
        height: visible ? Math.min(files.count, dialog.rowsInView) * 44 + Theme.unit * 2 : 0
        visible: dialog.sheet.hasFiles

        Card {
            anchors.fill: parent
        }
        RowList {
            id: files
            objectName: "sheetFiles"
            anchors.fill: parent
            anchors.margins: Theme.unit
            anchors.rightMargin: 1 // the scroll handle stands inside of the card's outline
            gutter: Theme.unit * 2 - anchors.rightMargin
            model: dialog.sheet.files
            onRowOpened: row => dialog.sheet.toggle(row)
            onRowToggled: row => dialog.sheet.toggle(row)
            Accessible.name: dialog.view.texts.associatedFiles
            delegate: AppFileRow {
                canChoose: !dialog.sheet.isBusy
                onClicked: dialog.sheet.toggle(index)
            }
        }
    }
    Item {
        width: parent.width
        height: 24
        Accessible.role: Accessible.StaticText
        Accessible.name: RowTexts.inARow([dialog.view.texts.totalToRemove, dialog.sheet.totalText])
        BodyText {
            height: parent.height
            text: dialog.view.texts.totalToRemove
            color: Theme.secondText
        }
        BodyText {
            objectName: "sheetTotal"
            anchors.right: parent.right
            height: parent.height
            text: dialog.sheet.totalText
            font.weight: Font.DemiBold
        }
    }

    buttons: [
        ActionButton {
            id: cancelButton
            objectName: "confirmCancel"
            enabled: !dialog.sheet.isBusy
            text: dialog.view.texts.cancel
            onClicked: dialog.close()
        },
        ActionButton {
            objectName: "confirmAction"
            enabled: !dialog.sheet.isBusy
            text: dialog.sheet.confirmText
            labels: dialog.sheet.confirmLabels
            isBusy: dialog.sheet.isBusy
            isDestructive: true
            onClicked: dialog.sheet.confirm()
        }
    ]
}
