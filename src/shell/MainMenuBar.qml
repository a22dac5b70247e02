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
    delegate: MenuBarItem {
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

    Shortcut {
        sequence: "F10" // the usual key for the menu bar
        onActivated: bar.itemAt(0).triggered()
    }
    Instantiator {
        model: bar.commands.menus
        onObjectAdded: (index, menu) => bar.insertMenu(index, menu)
        CommandMenu {
            required property var modelData
            commands: bar.commands
            title: modelData.title
            items: modelData.items
        }
    }
    // Over the list that never changes: the objects of a list that is replaced live on, and a key that two of them
    // have does nothing.
    Instantiator {
        model: bar.commands.keys
        Shortcut {
            required property var modelData
            sequence: modelData.sequence
            enabled: bar.commands.shortcuts.some(shortcut => shortcut.command === modelData.command)
            onActivated: bar.commands.perform(modelData.command)
        }
    }
}
