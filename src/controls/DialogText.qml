import QtQuick
import Quillmere

// A paragraph of a question or a message.
BodyText {
    visible: text.length > 0
    color: Theme.secondText
    lineHeight: 1.25
    wrapMode: Text.Wrap
    elide: Text.ElideNone
    maximumLineCount: 2000
}
