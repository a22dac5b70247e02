import QtQuick
import Quillmere

// A line of ordinary text. Never rich text: names of files are shown as they are.
Text {
    color: Theme.text
    font.pixelSize: Theme.bodySize
    textFormat: Text.PlainText
    elide: Text.ElideRight
    horizontalAlignment: Text.AlignLeft // of names that are written from the right as well
    maximumLineCount: wrapMode === Text.NoWrap ? 1 : 100 // a name may hold line breaks, its row has one line
    verticalAlignment: Text.AlignVCenter
}
