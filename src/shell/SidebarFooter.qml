pragma ComponentBehavior: Bound

import QtQuick
import Quillmere

// The buttons that open the sheets.
Row {
    id: footer

    required property SidebarView sidebar

    spacing: Theme.unit

    Repeater {
        model: footer.sidebar.footer
        IconButton {
            required property int index
            required property bool isAvailable
            enabled: isAvailable
            onClicked: footer.sidebar.openSheet(index)
        }
    }
}
