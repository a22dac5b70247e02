import QtQuick
import Quillmere

// How far a scan is.
Card {
    id: card

    required property DuplicateFinderView view

    objectName: "duplicateProgress"

    Column {
        anchors.centerIn: parent
        width: Math.min(parent.width - Theme.unit * 12, 560)
        spacing: Theme.unit * 3

        Item {
            width: parent.width
            height: 28
            Spinner {
                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                size: 20
                color: Theme.accent
            }
            BodyText {
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                text: card.view.percentText
                font.pixelSize: Theme.titleSize
                font.weight: Font.DemiBold
            }
        }
        ShareBar {
            width: parent.width
            share: card.view.progress
        }
        BodyText {
            width: parent.width
            text: card.view.currentPathText
            color: Theme.secondText
            elide: Text.ElideMiddle
        }
    }
}
