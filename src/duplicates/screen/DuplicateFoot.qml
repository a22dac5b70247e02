import QtQuick
import Quillmere

// What is set to go, and the button that lets it go.
FootBar {
    id: foot

    required property DuplicateFinderView view

    objectName: "duplicateFoot"
    visible: view.canDelete || view.isDeleting
    isBusy: view.isDeleting
    symbol: "exclamationmark.triangle.fill"
    tint: Theme.red
    text: isBusy ? view.deletingText : view.footText
    action.objectName: "trashButton"
    action.enabled: view.canDelete
    action.text: view.texts.moveToTrash
    action.symbol: "trash.fill"
    action.isDestructive: true
    onActed: view.askToDelete()
}
