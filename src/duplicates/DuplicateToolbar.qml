import QtQuick
import Quillmere

// The filters by type, and the choices for all groups at once.
Item {
    id: bar

    required property DuplicateFinderView view

    implicitHeight: Theme.controlHeight

    Row {
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.unit * 1.5
        Repeater {
            model: bar.view.filterRows
            FilterChip {
                required property int index
                capitalization: Font.Capitalize
                onClicked: bar.view.chooseFilter(index)
            }
        }
    }
    Row {
        anchors.right: parent.right
        spacing: Theme.unit * 2
        ActionButton {
            enabled: bar.view.canChoose
            text: bar.view.texts.selectAllDuplicates
            symbol: "checkmark.circle.fill"
            onClicked: bar.view.selectAllDuplicates()
        }
        ActionButton {
            enabled: bar.view.canChoose
            text: bar.view.texts.selectNone
            symbol: "circle"
            onClicked: bar.view.selectNone()
        }
        ActionButton {
            enabled: bar.view.canChoose
            text: bar.view.texts.keepNewest
            symbol: "clock.arrow.circlepath"
            onClicked: bar.view.keepNewest()
        }
        ActionButton {
            enabled: bar.view.canChoose
            text: bar.view.texts.keepOldest
            symbol: "clock.fill"
            onClicked: bar.view.keepOldest()
        }
    }
}
