import QtQuick
import Quillmere

// The outline of a control that has the keyboard.
Rectangle {
    objectName: "focusRing"
    anchors.fill: parent
    color: "transparent"
    border.color: Theme.accent
    border.width: 2
    radius: Theme.controlRadius
}
