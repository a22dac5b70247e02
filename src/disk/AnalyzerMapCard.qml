import QtQuick
import Quillmere

// The treemap of the entry on view.
Card {
    id: card

    required property DiskAnalyzerView view

    CaptionText {
        id: head
        x: Theme.unit * 4
        height: 40
        text: card.view.texts.visualMap
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    BodyText {
        anchors.right: parent.right
        anchors.rightMargin: Theme.unit * 4
        height: head.height
        text: card.view.mapSummary
        color: Theme.secondText
        font.pixelSize: Theme.smallSize
    }
    Treemap {
        anchors.fill: parent
        anchors.margins: Theme.unit * 4
        anchors.topMargin: head.height
        map: card.view.treemap
        label: card.view.texts.map
        summary: card.view.mapSummary
    }
    EmptyState {
        anchors.centerIn: parent
        width: parent.width
        visible: card.view.isMapEmpty
        symbol: "folder"
        text: card.view.texts.emptyMap
    }
}
