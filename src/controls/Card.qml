import QtQuick
import Quillmere

// A framed part of a screen.
Pill {
    color: Theme.card
    radius: Theme.cardRadius
    borderColor: Theme.line
}
