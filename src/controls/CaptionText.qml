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
    maximumLineCount: 1
    verticalAlignment: Text.AlignVCenter
}
