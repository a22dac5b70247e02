import QtQuick
import QtQuick.Templates as T
import Quillmere

// Asks before something that changes much at once or can't be undone here. The keyboard begins on Cancel, so that Return alone does no harm;
// Escape cancels.
T.Popup {
    id: dialog

    required property string title
    required property string text
    property string note // a second paragraph, which may come while the dialog stands
    required property string cancelLabel
    required property string actionLabel

    signal accepted
    signal rejected

    property bool isAccepted: false

    function accept() {
        isAccepted = true;
        close();
    }

    parent: T.Overlay.overlay
    anchors.centerIn: parent
    width: 400
    padding: Theme.unit * 5
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    visible: true
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape
    onOpened: cancelButton.forceActiveFocus(Qt.TabFocusReason)
    onClosed: isAccepted ? accepted() : rejected()
    T.Overlay.modal: Rectangle {
        color: Theme.backdrop
    }

    contentItem: Column {
        spacing: Theme.unit * 2
        Accessible.role: Accessible.AlertMessage
        Accessible.name: dialog.title
        Accessible.description: dialog.note.length > 0 ? dialog.text + " " + dialog.note : dialog.text

        BodyText {
            width: parent.width
            text: dialog.title
            font.pixelSize: 15
            font.weight: Font.DemiBold
            wrapMode: Text.Wrap
            elide: Text.ElideNone
        }
        BodyText {
            width: parent.width
            text: dialog.text
            color: Theme.secondText
            lineHeight: 1.25
            wrapMode: Text.Wrap
            elide: Text.ElideNone
        }
        BodyText {
            objectName: "confirmNote"
            width: parent.width
            visible: text.length > 0
            text: dialog.note
            color: Theme.amber
            lineHeight: 1.25
            wrapMode: Text.Wrap
            elide: Text.ElideNone
        }
        Item {
            width: parent.width
            height: buttons.height + Theme.unit * 3
            Row {
                id: buttons
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                spacing: Theme.unit * 2
                ActionButton {
                    id: cancelButton
                    objectName: "confirmCancel"
                    text: dialog.cancelLabel
                    onClicked: dialog.close()
                }
                ActionButton {
                    objectName: "confirmAction"
                    text: dialog.actionLabel
                    isDestructive: true
                    onClicked: dialog.accept()
                }
            }
        }
    }
    background: Card {
        color: Theme.raised
    }
}
