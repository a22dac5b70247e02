import QtQuick
import Quillmere

// The name of a file to be saved, what will be given, and the ways out of the panel.
Item {
    id: foot

    required property FilePanelView view

    function beginName() {
        nameField.forceActiveFocus(Qt.TabFocusReason);
        nameField.selectFirst(view.stemLength);
    }

    implicitHeight: line.y + line.height + Theme.unit * 3

    BodyText {
        id: nameLabel
        anchors.left: parent.left
        anchors.verticalCenter: nameField.verticalCenter
        visible: foot.view.isForSaving
        text: foot.view.texts.fileName
        color: Theme.secondText
        Accessible.ignored: true
    }
    InputField {
        id: nameField
        objectName: "panelName"
        y: Theme.unit * 3
        anchors.left: nameLabel.right
        anchors.leftMargin: Theme.unit * 2
        anchors.right: parent.right
        visible: foot.view.isForSaving
        label: foot.view.texts.fileName
        text: foot.view.fileName
        isWrong: foot.view.failureText.length > 0
        wrongText: foot.view.failureText
        onEdited: foot.view.fileName = text
        onAccepted: foot.view.accept()
    }
    Item {
        id: line
        y: nameField.visible ? nameField.y + nameField.height + Theme.unit * 2 : Theme.unit * 3
        width: parent.width
        height: Theme.controlHeight

        ElidedText {
            objectName: "panelResult"
            anchors.left: parent.left
            anchors.right: buttons.left
            anchors.rightMargin: Theme.unit * 4
            anchors.verticalCenter: parent.verticalCenter
            text: foot.view.failureText.length > 0 ? foot.view.failureText : foot.view.resultText
            color: foot.view.failureText.length > 0 ? Theme.red : Theme.secondText
            font.pixelSize: Theme.smallSize
        }
        Row {
            id: buttons
            anchors.right: parent.right
            spacing: Theme.unit * 2
            ActionButton {
                objectName: "panelCancel"
                text: foot.view.texts.cancel
                onClicked: foot.view.cancel()
            }
            ActionButton {
                objectName: "panelAccept"
                text: foot.view.acceptLabel
                isPrimary: true
                enabled: foot.view.canAccept
                onClicked: foot.view.accept()
            }
        }
    }
}
