import QtQuick
import Quillmere

// A framed part of a screen.
Rectangle {
    color: Theme.card
    radius: Theme.cardRadius
    border.color: Theme.line
}
