import QtQuick
import Quillmere

// What came of a run, in its colour and with its sign: a text, a second line where it helps, commands that follow from it, and
// a cross where it can be sent away.
Pill {
    id: line

    enum Tone { Success, Warning, Failure }

    required property string text
    property int tone: ResultLine.Success
    property string detail
    property string symbol: tone === ResultLine.Success ? "checkmark.circle.fill"
                          : tone === ResultLine.Warning ? "exclamationmark.triangle.fill" : "xmark.circle.fill"
    property string dismissLabel // without one there is no cross
    property alias dismissButton: cross
    default property alias commands: commandRow.data

    signal dismissed

    readonly property color tint: tone === ResultLine.Success ? Theme.green
                                : tone === ResultLine.Warning ? Theme.amber : Theme.red

    implicitWidth: 400
    implicitHeight: visible ? Math.max(Math.ceil(words.height), commandRow.height) + Theme.unit * 4 : 0
    visible: text.length > 0
    radius: Theme.cardRadius
    color: Theme.raised
    borderColor: tint
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text
    Accessible.description: detail

    Symbol {
        id: icon
        anchors.left: parent.left
        anchors.leftMargin: Theme.unit * 3
        anchors.verticalCenter: parent.verticalCenter
        name: line.symbol
        size: 16
        color: line.tint
    }
    Column {
        id: words
        anchors.left: icon.right
        anchors.leftMargin: Theme.unit * 2.5
        anchors.right: commandRow.left
        anchors.rightMargin: Theme.unit * 2.5
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2
        BodyText {
            id: title
            width: parent.width
            text: line.text
            font.weight: line.detail.length > 0 ? Font.DemiBold : Font.Normal
        }
        BodyText {
            id: more
            width: parent.width
            visible: text.length > 0
            text: line.detail
            color: Theme.secondText
            font.pixelSize: Theme.smallSize
            wrapMode: Text.Wrap
            maximumLineCount: 3
        }
    }
    HoverHandler {
        id: pointer
        enabled: title.truncated || more.truncated
    }
    Tip {
        control: line
        isDue: pointer.hovered && !commandRow.isHovered
        text: more.truncated ? line.detail : line.text
    }
    Row {
        id: commandRow

        readonly property bool isHovered: commandPointer.hovered

        anchors.right: cross.left
        anchors.rightMargin: width === 0 ? 0 : cross.visible ? Theme.unit : Theme.unit * 2
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.unit * 2
        HoverHandler {
            id: commandPointer
        }
    }
    IconButton {
        id: cross
        anchors.right: parent.right
        anchors.rightMargin: visible ? Theme.unit * 2 : 0
        anchors.verticalCenter: parent.verticalCenter
        width: visible ? implicitWidth : 0
        visible: line.dismissLabel.length > 0
        symbol: "xmark"
        symbolSize: 12
        label: line.dismissLabel
        tip: line.dismissLabel
        onClicked: line.dismissed()
    }
}
