import QtQuick
import Quillmere

// What a button, a picker or a field stands on: its ground, the wash of the pointer and the ring of the keyboard.
Pill {
    id: face

    property color outline: "transparent"
    property bool isHovered: false
    property bool isDown: false
    property bool hasRing: false

    radius: Theme.controlRadius
    borderColor: outline

    Pill {
        anchors.fill: parent
        visible: face.isHovered || face.isDown
        radius: parent.radius
        color: face.isDown ? Theme.pressed : Theme.hover
    }
    FocusRing {
        visible: face.hasRing
        radius: parent.radius
        isDouble: Qt.colorEqual(face.color, Theme.accent)
    }
}
