pragma ComponentBehavior: Bound

import QtQuick
import Quillmere

// The menu bar in the window. Its lines and their keys are the model's. It is a row of titles that nothing tabs to: a
// click, F10 or Alt with a letter opens a menu, from there the arrows and the pointer lead to the others, and what had
// the keyboard has it again when the menu closes. The toolkit's own bar leaves the keyboard on a title and goes on
// opening menus below the pointer after Escape.
Rectangle {
    id: bar

    required property MenuBarView commands
    readonly property var inForce: commands.commandsInForce
    property int shownIndex: -1 // the title whose menu is open

    function show(index, isByKey) {
        const shown = titles.itemAt(shownIndex) as MenuTitle;
        if (shown)
            shown.hideMenu();
        (titles.itemAt(index) as MenuTitle).showMenu(isByKey);
    }

    implicitHeight: 28
    color: Theme.sidebar
    Accessible.role: Accessible.MenuBar
    Accessible.name: commands.menuBarName

    Row {
        height: parent.height
        Repeater {
            id: titles
            model: bar.commands.menus
            MenuTitle {
                required property int index
                required property var modelData
                height: parent.height
                commands: bar.commands
                text: modelData.title
                letter: modelData.letter
                sequence: modelData.sequence
                items: modelData.items
                isBarInUse: bar.shownIndex >= 0
                onAsked: isByKey => bar.show(index, isByKey)
                onStepped: step => bar.show((index + step + titles.count) % titles.count, true)
                onIsShownChanged: bar.shownIndex = isShown ? index : -1
            }
        }
    }
    Divider {
        anchors.bottom: parent.bottom
        width: parent.width
    }
    Shortcut {
        sequence: "F10" // the usual key for the menu bar
        onActivated: bar.show(0, true)
    }
    // Over the list that never changes: the objects of a list that is replaced live on, and a key that two of them
    // have does nothing. A held key does what it does once.
    Instantiator {
        model: bar.commands.keys
        Shortcut {
            required property var modelData
            sequence: modelData.sequence
            autoRepeat: false
            enabled: bar.inForce.includes(modelData.command)
            onActivated: bar.commands.perform(modelData.command)
        }
    }
}
