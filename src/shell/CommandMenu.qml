pragma ComponentBehavior: Bound

import QtQuick
import Quillmere

// One menu of the menu bar.
PopupMenu {
    id: menu

    required property MenuBarView commands
    property var items: []

    property bool wasOpened: false

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
}
