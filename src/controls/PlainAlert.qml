import QtQuick
import Quillmere

// Tells something that can only be taken note of: its button, Return and Escape close it.
DialogFrame {
    id: alert

    required property string closeLabel

    signal dismissed

    onOpened: closeButton.forceActiveFocus(Qt.TabFocusReason)
    onClosed: dismissed()

    buttons: ActionButton {
        id: closeButton
        objectName: "alertClose"
        text: alert.closeLabel
        isPrimary: true
        onClicked: alert.close()
    }
}
