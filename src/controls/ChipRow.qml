pragma ComponentBehavior: Bound

import QtQuick
import Quillmere

// Chips of which one is chosen. They are one stop of the Tab key, at the chosen one; the arrows choose its neighbours. Where
// there is no room for all in a line they take a second one.
Flow {
    id: row

    required property string label // of all together, for assistive technology
    required property var model    // QAbstractItemModel of rows: label, countText, isSelected

    signal chosen(int index)

    spacing: Theme.unit * 1.5
    Accessible.role: Accessible.Grouping
    Accessible.name: label

    function goTo(index) {
        const chip = chips.itemAt((index + chips.count) % chips.count) as FilterChip;
        chip.forceActiveFocus(Qt.TabFocusReason);
        chip.clicked();
    }

    Repeater {
        id: chips
        model: row.model
        FilterChip {
            required property int index
            Keys.onLeftPressed: row.goTo(index - 1)
            Keys.onUpPressed: row.goTo(index - 1)
            Keys.onRightPressed: row.goTo(index + 1)
            Keys.onDownPressed: row.goTo(index + 1)
            onClicked: row.chosen(index)
        }
    }
}
