import QtQuick
import Quillmere

// Asks before something that changes much at once or can't be undone here. The keyboard begins on Cancel where the action
// destroys, so that Return alone does no harm, and on the action where it doesn't; Escape cancels.
DialogFrame {
    id: dialog

    required property string cancelLabel
    required property string actionLabel
    property bool isDestructive: true

    signal accepted
    signal rejected

    property bool isAccepted: false

    function accept() {
        isAccepted = true;
        close();
    }

    onOpened: (isDestructive ? cancelButton : actionButton).forceActiveFocus(Qt.TabFocusReason)
    onClosed: isAccepted ? accepted() : rejected()

    buttons: [
        ActionButton {
            id: cancelButton
            objectName: "confirmCancel"
            text: dialog.cancelLabel
            onClicked: dialog.close()
        },
        ActionButton {
            id: actionButton
            objectName: "confirmAction"
            text: dialog.actionLabel
            isDestructive: dialog.isDestructive
            isPrimary: !dialog.isDestructive
            onClicked: dialog.accept()
        }
    ]
}
