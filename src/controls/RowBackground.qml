import QtQuick
import Quillmere

// What lies under a row: a wash where it is the current one, pressed or under the pointer, and an outline of its own while its
// menu is open, so that nobody takes the current row for the one that the menu is about.
Pill {
    property bool isCurrent: false
    property bool isDown: false
    property bool isHovered: false
    property bool isMenuTarget: false

    radius: Theme.controlRadius
    color: isCurrent ? Theme.selected : isDown ? Theme.pressed : isHovered ? Theme.hover : "transparent"
    borderColor: isMenuTarget ? Theme.text : "transparent"
}
