import QtQuick
import Quillmere

// What is set to go, and the button that lets it go.
Card {
    id: foot

    required property DuplicateFinderView view

    objectName: "duplicateFoot"
    visible: view.canDelete || view.isDeleting
    height: visible ? 48 : 0
    border.color: view.isDeleting ? Theme.line : Theme.red

    Symbol {
        id: icon
        x: Theme.unit * 4
        anchors.verticalCenter: parent.verticalCenter
        visible: !foot.view.isDeleting
        name: "exclamationmark.triangle.fill"
        size: 16
        color: Theme.red
    }
    Spinner {
        x: Theme.unit * 4
        anchors.verticalCenter: parent.verticalCenter
        visible: foot.view.isDeleting
        size: 16
    }
    BodyText {
        anchors.left: icon.right
        anchors.leftMargin: Theme.unit * 3
        anchors.right: button.left
        anchors.verticalCenter: parent.verticalCenter
        text: foot.view.isDeleting ? foot.view.deletingText : foot.view.footText
    }
    ActionButton {
        id: button
        objectName: "trashButton"
        anchors.right: parent.right
        anchors.rightMargin: Theme.unit * 2.5
        anchors.verticalCenter: parent.verticalCenter
        enabled: foot.view.canDelete
        text: foot.view.texts.moveToTrash
        symbol: "trash.fill"
        isDestructive: true
        onClicked: foot.view.askToDelete()
    }
}
