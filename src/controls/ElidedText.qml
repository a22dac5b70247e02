import QtQuick
import Quillmere

// A name or a path that is cut in its middle where it has no room, and then told whole by a tooltip.
BodyText {
    id: label

    elide: Text.ElideMiddle

    HoverHandler {
        id: pointer
        enabled: label.truncated
    }
    Tip {
        control: label
        isDue: pointer.hovered
        text: label.text
    }
}
