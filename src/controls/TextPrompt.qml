import QtQuick
import Quillmere

// Asks for a line of text. Return in the field accepts as the button does, where `canAccept` lets it; Escape cancels. What was
// there at first is marked, so that writing replaces it.
DialogFrame {
    id: prompt

    required property string fieldLabel
    required property string cancelLabel
    required property string actionLabel
    property string initialText
    property bool canAccept: currentText.length > 0

    readonly property alias currentText: field.text

    signal accepted(string text)
    signal rejected

    property bool isAccepted: false

    function accept() {
        if (!canAccept)
            return;
        isAccepted = true;
        close();
    }

    function begin() {
        field.forceActiveFocus(Qt.TabFocusReason);
        field.selectAll();
    }

    text: ""
    onOpened: begin()
    onClosed: isAccepted ? accepted(currentText) : rejected()

    InputField {
        id: field
        objectName: "promptField"
        width: parent ? parent.width : 0
        text: prompt.initialText
        placeholder: prompt.fieldLabel
        onAccepted: prompt.accept()
    }
    buttons: [
        ActionButton {
            objectName: "promptCancel"
            text: prompt.cancelLabel
            onClicked: prompt.close()
        },
        ActionButton {
            objectName: "promptAction"
            text: prompt.actionLabel
            isPrimary: true
            enabled: prompt.canAccept
            onClicked: prompt.accept()
        }
    ]
}
