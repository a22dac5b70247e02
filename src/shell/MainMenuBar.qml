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
    Instantiator {
        model: bar.commands.shortcuts
        Shortcut {
            required property var modelData
            sequence: modelData.sequence
            onActivated: bar.commands.perform(modelData.command)
        }
    }
}
