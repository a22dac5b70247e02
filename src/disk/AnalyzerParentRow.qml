import QtQuick
import QtQuick.Templates as T
import Quillmere

// The first row of the table below the top: one level back.
T.ItemDelegate {
    id: row

    objectName: "parentRow"
    visible: text.length > 0
    implicitHeight: visible ? Theme.rowHeight : 0
    height: implicitHeight
    leftPadding: Theme.unit * 2
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Item {
        Symbol {
            id: icon
            anchors.verticalCenter: parent.verticalCenter
            name: "arrow.turn.up.left"
            size: 14
        }
        BodyText {
            id: label
            anchors.left: icon.right
            anchors.leftMargin: Theme.unit * 2.5
            anchors.right: parent.right
            anchors.rightMargin: Theme.unit * 2.5
            anchors.verticalCenter: parent.verticalCenter
            text: row.text
            color: Theme.secondText
        }
    }
    background: RowBackground {
        isDown: row.down
        isHovered: row.hovered
        FocusRing {
            visible: row.visualFocus
        }
    }
    Tip {
        control: row
        isDue: row.hovered && !row.down
        text: label.truncated ? row.text : ""
    }
}
