import QtQuick
import Quillmere

// The filters by type, and the choices for all groups at once.
Item {
    id: bar

    required property DuplicateFinderView view

    // In a narrow window the choices stand below the filters.
    readonly property bool isNarrow: chips.implicitWidth + choices.width + Theme.unit * 4 > width

    implicitHeight: isNarrow ? Theme.controlHeight * 2 + Theme.unit * 2 : Theme.controlHeight

    ChipRow {
        id: chips
        y: (Theme.controlHeight - height) / 2
        label: bar.view.texts.filters
        model: bar.view.filterRows
        onChosen: index => bar.view.chooseFilter(index)
    }
    Row {
        id: choices
        x: bar.isNarrow ? 0 : bar.width - width
        y: bar.isNarrow ? Theme.controlHeight + Theme.unit * 2 : 0
        spacing: Theme.unit * 2
        ActionButton {
            enabled: bar.view.canSelectAllDuplicates
            text: bar.view.texts.selectAllDuplicates
            symbol: "checkmark.circle.fill"
            onClicked: bar.view.selectAllDuplicates()
        }
        ActionButton {
            enabled: bar.view.canSelectNone
            text: bar.view.texts.selectNone
            symbol: "circle"
            onClicked: bar.view.selectNone()
        }
        ActionButton {
            enabled: bar.view.canKeepNewest
            text: bar.view.texts.keepNewest
            symbol: "clock.arrow.circlepath"
            onClicked: bar.view.keepNewest()
        }
        ActionButton {
            enabled: bar.view.canKeepOldest
            text: bar.view.texts.keepOldest
            symbol: "clock.fill"
            onClicked: bar.view.keepOldest()
        }
    }
}
