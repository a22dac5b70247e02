import QtQuick
import Quillmere

// The column titles of the table; the widths are those of AnalyzerContentsRow.
Item {
    id: columns

    required property DiskAnalyzerView view

    implicitHeight: 24

    BodyText {
        height: parent.height
        text: columns.view.texts.nameColumn
        color: Theme.secondText
        font.pixelSize: Theme.captionSize
    }
    BodyText {
        anchors.right: shareTitle.left
        width: 90
        height: parent.height
        horizontalAlignment: Text.AlignRight
        text: columns.view.texts.sizeColumn
        color: Theme.secondText
        font.pixelSize: Theme.captionSize
    }
    BodyText {
        id: shareTitle
        anchors.right: parent.right
        anchors.rightMargin: Theme.controlHeight
        width: 190
        height: parent.height
        leftPadding: Theme.unit * 6
        text: columns.view.texts.shareColumn
        color: Theme.secondText
        font.pixelSize: Theme.captionSize
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Theme.line
    }
}
