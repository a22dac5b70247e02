import QtQuick
import Quillmere

// How far a scan is, in the place of its result: a percentage over a bar where one is known, else a spinner; then what it
// does, and where it is.
Card {
    id: card

    property string percentText // empty where nobody knows how far the scan is
    property double share
    property string text
    property string pathText

    readonly property bool hasPercent: percentText.length > 0

    Accessible.role: Accessible.ProgressBar
    Accessible.name: text.length > 0 ? text : pathText
    Accessible.description: hasPercent ? percentText : pathText

    Column {
        anchors.centerIn: parent
        width: Math.min(parent.width - Theme.unit * 12, 560)
        spacing: Theme.unit * 3

        Item {
            width: parent.width
            height: 28
            Spinner {
                anchors.left: parent.left
                anchors.leftMargin: card.hasPercent ? 0 : Math.round((parent.width - width) / 2)
                anchors.verticalCenter: parent.verticalCenter
                size: card.hasPercent ? 20 : 28
                color: Theme.accent
            }
            BodyText {
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                visible: card.hasPercent
                text: card.percentText
                font.pixelSize: Theme.titleSize
                font.weight: Font.DemiBold
            }
        }
        ShareBar {
            width: parent.width
            visible: card.hasPercent
            share: card.share
        }
        BodyText {
            width: parent.width
            visible: text.length > 0
            horizontalAlignment: card.hasPercent ? Text.AlignLeft : Text.AlignHCenter
            text: card.text
            font.weight: Font.DemiBold
        }
        ElidedText {
            width: parent.width
            horizontalAlignment: card.hasPercent ? Text.AlignLeft : Text.AlignHCenter
            text: card.pathText
            color: Theme.secondText
        }
    }
}
