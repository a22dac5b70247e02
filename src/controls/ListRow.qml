import QtQuick
import QtQuick.Templates as T
import Quillmere

// A row of a RowList, with nothing on it. What it lists is its `text`; a click is `clicked`, all else goes by the list.
T.ItemDelegate {
    id: row

    required property int index
    property string spoken // what assistive technology is told after the name
    property string tip    // shown below the row when the pointer rests on it

    readonly property RowList list: ListView.view as RowList
    readonly property string place: RowTexts.place(index, list ? list.count : 0)
    readonly property bool isCurrent: list !== null && ListView.isCurrentItem && list.activeFocus
    readonly property bool isMenuTarget: list !== null && list.menuRow === index

    width: list ? list.rowWidth : 0
    implicitHeight: Theme.rowHeight
    leftPadding: Theme.unit * 2
    rightPadding: Theme.unit * 2
    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    onPressed: list.take(index)

    // A button of its own would take Space, and on some desktops Return, for a click.
    Keys.forwardTo: [list]

    // A row that waits to be used again is no longer there for anyone.
    ListView.onPooled: visible = false
    ListView.onReused: visible = true

    Accessible.name: text
    Accessible.description: RowTexts.told(spoken, place)
    Accessible.focusable: true
    Accessible.selectable: true
    Accessible.selected: ListView.isCurrentItem

    background: RowBackground {
        isCurrent: row.isCurrent
        isDown: row.down
        isHovered: row.hovered
        isMenuTarget: row.isMenuTarget
    }
    Tip {
        control: row
        isDue: row.hovered && !row.down
        text: row.tip
    }
}
