import QtQuick
import Quillmere

// The outline of a control that has the keyboard. On a ground of its own colour, or of any, it is not seen: there a second line
// goes inside of it, in the colour of the words on such a ground.
Pill {
    id: ring

    property bool isDouble: false

    objectName: "focusRing"
    anchors.fill: parent
    borderColor: Theme.accent
    borderWidth: 2
    radius: Theme.controlRadius

    Pill {
        objectName: "innerRing"
        anchors.fill: parent
        anchors.margins: ring.borderWidth
        visible: ring.isDouble
        radius: ring.radius - ring.borderWidth
        borderColor: Theme.accentText
    }
}
