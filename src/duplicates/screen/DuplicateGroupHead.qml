import QtQuick
import Quillmere

// What a row shows of the head of a group of equal files.
Item {
    id: head

    required property string title
    required property string detail
    required property string trailing
    required property string sameMark
    required property string sameTip
    required property string lossMark
    required property string lossTip
    required property DuplicateFinderView view

    readonly property string tip: caption.truncated ? title : ""

    signal newest
    signal oldest

    Column {
        anchors.left: parent.left
        anchors.leftMargin: Theme.unit * 3
        anchors.right: buttons.left
        anchors.rightMargin: Theme.unit * 3
        anchors.verticalCenter: parent.verticalCenter
        Item {
            width: parent.width
            height: caption.height
            BodyText {
                id: caption
                width: Math.min(implicitWidth, parent.width - marks.width - marks.anchors.leftMargin)
                text: head.title
                font.weight: Font.DemiBold
                elide: Text.ElideMiddle
            }
            Row {
                id: marks
                anchors.left: caption.right
                anchors.leftMargin: width > 0 ? Theme.unit * 2 : 0
                anchors.verticalCenter: caption.verticalCenter
                spacing: Theme.unit
                Badge {
                    text: head.sameMark
                    tip: head.sameTip
                    tint: Theme.amber
                }
                Badge {
                    text: head.lossMark
                    tip: head.lossTip
                    tint: Theme.red
                }
            }
        }
        BodyText {
            width: parent.width
            text: head.detail
            color: Theme.secondText
            font.pixelSize: Theme.smallSize
        }
    }
    Row {
        id: buttons
        anchors.right: amount.left
        anchors.rightMargin: Theme.unit * 3
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.unit
        ActionButton {
            enabled: head.view.canChoose
            text: head.view.texts.newest
            symbol: "clock.arrow.circlepath"
            focusPolicy: Qt.NoFocus
            onClicked: head.newest()
        }
        ActionButton {
            enabled: head.view.canChoose
            text: head.view.texts.oldest
            symbol: "clock.fill"
            focusPolicy: Qt.NoFocus
            onClicked: head.oldest()
        }
    }
    BodyText {
        id: amount
        anchors.right: parent.right
        anchors.rightMargin: Theme.unit * 3
        anchors.verticalCenter: parent.verticalCenter
        width: Math.max(implicitWidth, 130)
        horizontalAlignment: Text.AlignRight
        text: head.trailing
        color: Theme.amber
        font.weight: Font.DemiBold
    }
}
