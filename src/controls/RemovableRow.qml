import QtQuick
import Quillmere

// A row of a list of the user's own: a symbol, words, and a button at the right that takes it out, as Delete and Backspace do.
// What stands inside is laid out in the room between symbol and button.
ListRow {
    id: row

    property string symbol
    property color tint: Theme.secondText
    property string hint  // what there is to say of it; told, and shown when the pointer rests
    property bool isCut: false // its text has no room
    property bool canBeRemoved: false
    property string removeLabel: removeTip
    property string removeTip
    property alias removeButton: remove
    default property alias words: room.data

    signal removed

    implicitHeight: Theme.controlHeight
    rightPadding: 0
    spoken: hint
    tip: hovered && !remove.hovered ? RowTexts.lines([isCut ? text : "", hint]) : ""
    Keys.onPressed: event => event.accepted = row.askToRemove(event.key, event.modifiers)

    function askToRemove(key, modifiers) {
        if (!canBeRemoved || !RowSteps.asksForRemoval(key, modifiers))
            return false;
        removed();
        return true;
    }

    contentItem: Item {
        Symbol {
            id: icon
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            name: row.symbol
            size: 14
            color: row.tint
        }
        Item {
            id: room
            anchors.left: icon.right
            anchors.leftMargin: Theme.unit * 2
            anchors.right: remove.left
            height: parent.height
        }
        IconButton {
            id: remove
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: visible ? implicitWidth : 0
            visible: row.canBeRemoved
            symbol: "xmark"
            symbolSize: 12
            label: row.removeLabel
            tip: row.removeTip
            focusPolicy: Qt.NoFocus
            onClicked: row.removed()
        }
    }
}
