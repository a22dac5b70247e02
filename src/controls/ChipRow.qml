pragma ComponentBehavior: Bound

import QtQuick
import Quillmere

// Chips of which one is chosen; the arrows choose.
FocusRow {
    id: row

    required property string label // of all together, for assistive technology; the model's rows: label, countText, isSelected

    signal chosen(int index)

    spacing: Theme.unit * 1.5
    onMoved: index => chosen(index)
    Accessible.role: Accessible.Grouping
    Accessible.name: label

    delegate: FilterChip {
        id: chip

        required property int index

        isStop: index === row.stop
        onClicked: row.chosen(index)

        Binding {
            target: row
            property: "stop"
            value: chip.index
            when: chip.isSelected
            restoreMode: Binding.RestoreNone
        }
    }
}
