import QtQuick
import Quillmere

// The column titles of the table, and how wide its columns are. In a very wide window the sizes stay near the names.
Item {
    id: columns

    required property DiskAnalyzerView view

    readonly property int sizeWidth: 90
    readonly property int buttonWidth: Theme.controlHeight
    readonly property real nameWidth: Math.min(640, width - sizeWidth - 190 - buttonWidth)
    readonly property real shareWidth: Math.min(420, width - nameWidth - sizeWidth - buttonWidth)

    implicitHeight: 24

    BodyText {
        width: columns.nameWidth
        height: parent.height
        text: columns.view.texts.nameColumn
        color: Theme.secondText
        font.pixelSize: Theme.captionSize
    }
    BodyText {
        x: columns.nameWidth
        width: columns.sizeWidth
        height: parent.height
        horizontalAlignment: Text.AlignRight
        text: columns.view.texts.sizeColumn
        color: Theme.secondText
        font.pixelSize: Theme.captionSize
    }
    BodyText {
        x: columns.nameWidth + columns.sizeWidth
        width: columns.shareWidth
        height: parent.height
        leftPadding: Theme.unit * 6
        text: columns.view.texts.shareColumn
        color: Theme.secondText
        font.pixelSize: Theme.captionSize
    }
    Divider {
        anchors.bottom: parent.bottom
        width: parent.width
    }
}
