import QtQuick
import QtQuick.Templates as T
import Quillmere

// What every question and message stands in: a dimmed backdrop, a card with a title and a text, and buttons at its end. A text
// that is too long for the window scrolls, by the arrows too. Its children stand between text and buttons. Escape closes it.
T.Popup {
    id: dialog

    required property string title
    required property string text
    property string note // a second paragraph, which may come while the dialog stands
    default property alias body: bodyColumn.data
    property alias buttons: buttonRow.data

    parent: T.Overlay.overlay
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: parent ? Math.round((parent.height - height) / 2) : 0
    width: 400
    padding: Theme.unit * 5
    implicitHeight: Math.ceil(implicitContentHeight) + topPadding + bottomPadding
    visible: true
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape
    T.Overlay.modal: Rectangle {
        color: Theme.backdrop
    }

    contentItem: Column {
        spacing: Theme.unit * 2
        Accessible.role: Accessible.AlertMessage
        Accessible.name: dialog.title
        Accessible.description: RowTexts.inARow([dialog.text, dialog.note])
        Keys.onUpPressed: words.scroll(-words.line)
        Keys.onDownPressed: words.scroll(words.line)

        BodyText {
            width: parent.width
            visible: text.length > 0
            text: dialog.title
            font.pixelSize: 15
            font.weight: Font.DemiBold
            wrapMode: Text.Wrap
            maximumLineCount: 4
        }
        Flickable {
            id: words

            readonly property int line: 20

            function scroll(distance) {
                contentY = Math.max(0, Math.min(contentHeight - height, contentY + distance));
            }

            width: parent.width
            height: Math.min(contentHeight, Math.max(120, (dialog.parent ? dialog.parent.height : 0) - 320))
            visible: contentHeight > 0
            contentHeight: Math.ceil(paragraphs.height)
            interactive: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds
            clip: interactive
            T.ScrollBar.vertical: ScrollHandle { }

            Column {
                id: paragraphs
                width: words.interactive ? parent.width - Theme.unit * 3 : parent.width
                spacing: Theme.unit * 2
                DialogText {
                    width: parent.width
                    text: dialog.text
                }
                DialogText {
                    objectName: "confirmNote"
                    width: parent.width
                    text: dialog.note
                    color: Theme.amber
                }
            }
        }
        Column {
            id: bodyColumn
            width: parent.width
            spacing: Theme.unit * 2
        }
        Item {
            width: parent.width
            height: buttonRow.height + Theme.unit * 3
            Row {
                id: buttonRow
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                spacing: Theme.unit * 2
            }
        }
    }
    background: Card {
        color: Theme.raised
    }
}
