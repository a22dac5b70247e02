import QtQuick
import Quillmere

// The outline of a control that has the keyboard.
Pill {
    objectName: "focusRing"
    anchors.fill: parent
    borderColor: Theme.accent
    borderWidth: 2
    radius: Theme.controlRadius
}
