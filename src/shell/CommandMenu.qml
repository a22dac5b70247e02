pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Quillmere

// One menu of the menu bar. It is filled when it first opens, so that the window need not wait for some forty lines that
// nobody has asked for.
PopupMenu {
    id: menu

    required property MenuBarView commands
    required property var items
    property bool wasOpened: false
    readonly property var keys: [{ sequence: "Left", step: -1 }, { sequence: "Right", step: 1 }, { sequence: "F10", step: 0 }]

    signal stepped(int step) // to the menu before or after

    // Not by a press on its title, which closes it by itself.
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent
    onAboutToShow: wasOpened = true

    Instantiator {
        model: menu.wasOpened ? menu.items : []
        onObjectAdded: (index, line) => menu.insertItem(index, line)
        MenuLine {
            required property var modelData
            objectName: modelData.title
            text: modelData.title
            keysText: modelData.keysText
            isDivider: modelData.isDivider
            enabled: modelData.isEnabled && (menu.commands.hasText || !modelData.isText)
            onTriggered: menu.commands.perform(modelData.command)
        }
    }
    // Shortcuts and not keys of a line, since no line has the keyboard after a click on the title.
    Instantiator {
        model: menu.wasOpened ? menu.keys : []
        Shortcut {
            required property var modelData
            sequence: modelData.sequence
            enabled: menu.visible
            onActivated: modelData.step === 0 ? menu.close() : menu.stepped(modelData.step)
        }
    }
}
