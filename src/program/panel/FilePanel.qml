// A Loader of Qt 6.4 makes no bound component, and qmllint knows the ids of an unbound one only as unqualified.
// qmllint disable unqualified
import QtQuick
import Quillmere

// The program's own panel for a folder or for saving.
SheetFrame {
    id: panel

    required property FilePanelView view

    title: view.title
    symbol: view.symbol
    closeLabel: view.texts.close
    isCovered: question.active || prompt.active
    onOpened: view.isForSaving ? foot.beginName() : list.forceActiveFocus()
    onDismissed: view.cancel()

    tools: [
        ToggleSwitch {
            objectName: "panelHidden"
            anchors.verticalCenter: parent?.verticalCenter
            text: panel.view.texts.hidden
            isOn: panel.view.showsHidden
            onClicked: panel.view.showsHidden = !panel.view.showsHidden
        },
        ActionButton {
            objectName: "panelNewFolder"
            text: panel.view.texts.newFolder
            symbol: "folder.badge.plus"
            enabled: panel.view.canMakeFolder
            onClicked: panel.view.askForFolderName()
        }
    ]

    Item {
        id: placeColumn
        width: 184
        anchors.top: parent.top
        anchors.bottom: foot.top

        CaptionText {
            id: placesHead
            x: Theme.unit * 5
            y: Theme.unit * 3
            height: Theme.controlHeight
            text: panel.view.texts.places
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        RowList {
            objectName: "panelPlaces"
            anchors.top: placesHead.bottom
            anchors.topMargin: Theme.unit
            anchors.bottom: parent.bottom
            anchors.left: parent.left
            anchors.leftMargin: Theme.unit * 3
            anchors.right: parent.right
            focus: false
            model: panel.view.places
            Accessible.name: panel.view.texts.places
            onRowOpened: row => panel.view.openPlace(row)
            delegate: FilePanelPlace {
                onClicked: panel.view.openPlace(index)
            }
        }
    }
    Divider {
        id: divider
        anchors.left: placeColumn.right
        anchors.bottom: foot.top
        height: placeColumn.height
    }
    IconButton {
        id: upButton
        objectName: "panelUp"
        anchors.left: divider.right
        anchors.leftMargin: Theme.unit * 3
        y: Theme.unit * 3
        symbol: "chevron.up"
        label: panel.view.texts.up
        tip: panel.view.texts.up
        enabled: panel.view.canGoUp
        onClicked: panel.view.goUp()
    }
    Breadcrumbs {
        objectName: "panelPath"
        anchors.left: upButton.right
        anchors.leftMargin: Theme.unit
        anchors.right: parent.right
        anchors.rightMargin: Theme.unit * 5
        y: upButton.y
        label: panel.view.texts.path
        beginsWithSign: false
        model: panel.view.crumbs
        onChosen: index => panel.view.openCrumb(index)
    }
    FilePanelList {
        id: list
        anchors.left: divider.right
        anchors.right: parent.right
        anchors.top: upButton.bottom
        anchors.topMargin: Theme.unit
        anchors.bottom: foot.top
        focus: !panel.view.isForSaving
        view: panel.view
    }
    Divider {
        anchors.bottom: foot.top
        width: parent.width
    }
    FilePanelFoot {
        id: foot
        x: Theme.unit * 5
        width: parent.width - Theme.unit * 10
        anchors.bottom: parent.bottom
        focus: panel.view.isForSaving
        view: panel.view
    }
    Loader {
        id: question
        active: panel.view.replaceQuestion.isUp
        sourceComponent: ConfirmDialog {
            title: panel.view.replaceQuestion.text
            text: panel.view.texts.replaceDetail
            cancelLabel: panel.view.texts.cancel
            actionLabel: panel.view.texts.replace
            onAccepted: panel.view.replaceQuestion.confirm()
            onRejected: panel.view.replaceQuestion.cancel()
        }
    }
    Loader {
        id: prompt
        active: panel.view.asksForFolderName
        sourceComponent: TextPrompt {
            title: panel.view.texts.newFolder
            fieldLabel: panel.view.texts.newFolderName
            cancelLabel: panel.view.texts.cancel
            actionLabel: panel.view.texts.create
            onAccepted: text => panel.view.makeFolder(text)
            onRejected: panel.view.cancelFolderName()
        }
    }
}
