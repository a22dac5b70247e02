import QtQuick
import QtQuick.Controls.Basic
import Quillmere

// The menu bar in the window. Its lines and their keys are the model's; a menu is filled when it first opens, so that
// the window need not wait for some forty lines that nobody has asked for.
MenuBar {
    id: bar

    required property MenuBarView commands

    background: Rectangle {
        implicitHeight: 28
        color: Theme.sidebar
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 1
            color: Theme.line
        }
    }
    delegate: MenuTitle { }

    Shortcut {
        sequence: "F10" // the usual key for the menu bar
        onActivated: (bar.itemAt(0) as MenuBarItem).triggered()
    }
}
