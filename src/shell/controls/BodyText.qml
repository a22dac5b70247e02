import QtQuick
import Quillmere

// A line of ordinary text. Never rich text: names of files are shown as they are.
Text {
    color: Theme.text
    font.pixelSize: Theme.bodySize
    textFormat: Text.PlainText
    elide: Text.ElideRight
    verticalAlignment: Text.AlignVCenter
}
