pragma ComponentBehavior: Bound

import QtQuick
import Quillmere

// What an expanded entry shows: its note, and the paths that its run touched.
Column {
    id: details

    required property string detail
    required property string filesHeading
    required property list<string> shownPaths
    required property string moreText

    topPadding: Theme.unit * 1.5
    leftPadding: 32 + Theme.unit * 3
    bottomPadding: Theme.unit
    spacing: Theme.unit

    BodyText {
        width: details.width - details.leftPadding
        visible: text.length > 0
        text: details.detail
        wrapMode: Text.Wrap
        elide: Text.ElideNone
        bottomPadding: Theme.unit
    }
    CaptionText {
        visible: text.length > 0
        text: details.filesHeading
    }
    Repeater {
        model: details.shownPaths
        ElidedText {
            required property string modelData
            width: details.width - details.leftPadding
            text: modelData
            color: Theme.secondText
            font.pixelSize: Theme.smallSize
            maximumLineCount: 1
        }
    }
    BodyText {
        visible: text.length > 0
        text: details.moreText
        color: Theme.secondText
        font.pixelSize: Theme.smallSize
        font.italic: true
    }
}
