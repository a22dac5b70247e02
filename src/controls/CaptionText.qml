import QtQuick
import Quillmere

// The spaced capitals at the head of a section.
Text {
    color: Theme.secondText
    font.pixelSize: Theme.captionSize
    font.weight: Font.DemiBold
    font.letterSpacing: 0.6
    textFormat: Text.PlainText
    elide: Text.ElideRight
    horizontalAlignment: Text.AlignLeft // so that it is mirrored with what it is the head of
    maximumLineCount: 1
    verticalAlignment: Text.AlignVCenter
}
