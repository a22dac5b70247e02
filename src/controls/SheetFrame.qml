// The backdrop is made apart from the sheet, and qmllint knows ids there only as unqualified.
// qmllint disable unqualified
import QtQuick
import QtQuick.Templates as T
import Quillmere

// A sheet on top of the window: a dimmed backdrop and a card with a head. It keeps the keyboard to itself while it is
// up, and asks to go by Escape and by its close button. Its children fill the card below the head.
T.Popup {
    id: sheet

    required property string title
    required property string symbol
    required property string closeLabel
    property string summary
    property bool isCovered: false // a question stands on it, with a backdrop of its own
    default property alias body: content.data
    property alias tools: toolRow.data // at the right of the head

    signal dismissed

    parent: T.Overlay.overlay
    anchors.centerIn: parent
    width: Math.min(800, parent ? parent.width - Theme.unit * 16 : 0)
    height: Math.min(640, parent ? parent.height - Theme.unit * 16 : 0)
    padding: 1
    visible: true
    modal: true
    focus: true
    closePolicy: T.Popup.CloseOnEscape
    onClosed: dismissed()
    T.Overlay.modal: Rectangle {
        objectName: "sheetBackdrop"
        color: sheet.isCovered ? "transparent" : Theme.backdrop
    }

    contentItem: FocusScope {
        focus: true
        Accessible.role: Accessible.Dialog
        Accessible.name: sheet.title

        Item {
            id: head
            x: Theme.unit * 5
            width: parent.width - Theme.unit * 8
            height: 56

            Row {
                anchors.verticalCenter: parent.verticalCenter
                spacing: Theme.unit * 2.5
                Symbol {
                    anchors.verticalCenter: parent.verticalCenter
                    name: sheet.symbol
                    size: 18
                    color: Theme.accent
                }
                BodyText {
                    id: titleText
                    anchors.verticalCenter: parent.verticalCenter
                    width: Math.min(implicitWidth, toolRow.x - Theme.unit * 2 - x - (summaryText.visible ? summaryText.width + parent.spacing : 0))
                    text: sheet.title
                    font.pixelSize: 16
                    font.weight: Font.DemiBold
                }
                BodyText {
                    id: summaryText
                    objectName: "sheetSummary"
                    visible: text.length > 0
                    anchors.baseline: titleText.baseline
                    text: sheet.summary
                    color: Theme.secondText
                    font.pixelSize: Theme.smallSize
                }
            }
            Row {
                id: toolRow
                anchors.right: closeButton.left
                anchors.rightMargin: Theme.unit * 2
                anchors.verticalCenter: parent.verticalCenter
                spacing: Theme.unit * 2
            }
            IconButton {
                id: closeButton
                objectName: "sheetClose"
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                symbol: "xmark"
                symbolSize: 13
                label: sheet.closeLabel
                tip: ""
                onClicked: sheet.close()
            }
        }
        Divider {
            anchors.top: head.bottom
            width: parent.width
        }
        FocusScope {
            id: content
            anchors.fill: parent
            anchors.topMargin: head.height + 1
            focus: true
        }
    }
    background: Card { }
}
