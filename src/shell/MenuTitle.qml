import QtQuick
import QtQuick.Controls.Basic
import Quillmere

// The title of a menu in the menu bar.
MenuBarItem {
    id: title
    implicitHeight: 28
    padding: Theme.unit * 2
    contentItem: BodyText {
        text: title.text
    }
    background: Rectangle {
        anchors.fill: parent
        anchors.margins: 3
        radius: Theme.tileRadius
        color: title.highlighted ? Theme.pressed : "transparent"
    }
}
