pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls.Basic
import Quillmere

// Fills the menu bar with its menus, and gives their lines their keys.
Item {
    id: filler

    required property MenuBar bar
    required property MenuBarView commands
    readonly property var keysInForce: commands.shortcuts

    Instantiator {
        model: filler.commands.menus
        onObjectAdded: (index, menu) => filler.bar.insertMenu(index, menu)
        CommandMenu {
            required property var modelData
            commands: filler.commands
            title: modelData.title
            items: modelData.items
        }
    }
    // Over the list that never changes: the objects of a list that is replaced live on, and a key that two of them
    // have does nothing.
    Instantiator {
        model: filler.commands.keys
        Shortcut {
            required property var modelData
            sequence: modelData.sequence
            enabled: filler.keysInForce.some(key => key.command === modelData.command)
            onActivated: filler.commands.perform(modelData.command)
        }
    }
}
