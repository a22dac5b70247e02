import QtQuick
import QtQuick.Templates as T
import Quillmere

// A folder that a tool works on. A click is to change it; where it is one of several, a button and the Delete key take it
// out. `tip` tells what the click does; a path that is cut is told whole above it.
T.ItemDelegate {
    id: row

    property string symbol: "folder.fill"
    property string detail // at the right of the path
    property string tip
    property bool canBeRemoved: false
    property string removeLabel
    property string removeTip
    property alias removeButton: remove

    signal removed

    implicitHeight: Theme.controlHeight
    leftPadding: Theme.unit * 2
    rightPadding: 0
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.ListItem
    Accessible.name: text
    Accessible.description: detail
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onDeletePressed: if (canBeRemoved) removed()

    contentItem: Item {
        Symbol {
            id: icon
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            name: row.symbol
            size: 14
            color: Theme.accent
        }
        BodyText {
            id: path
            anchors.left: icon.right
            anchors.leftMargin: Theme.unit * 2
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, parent.width - icon.width - detailText.width - remove.width - Theme.unit * 4)
            text: row.text
            elide: Text.ElideMiddle
        }
        BodyText {
            id: detailText
            anchors.right: remove.left
            anchors.rightMargin: Theme.unit * 2
            anchors.verticalCenter: parent.verticalCenter
            text: row.detail
            color: Theme.secondText
            font.pixelSize: Theme.smallSize
        }
        IconButton {
            id: remove
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: visible ? implicitWidth : 0
            visible: row.canBeRemoved
            symbol: "xmark.circle.fill"
            symbolSize: 13
            label: row.removeLabel
            tip: row.removeTip
            onClicked: row.removed()
        }
    }
    background: Pill {
        radius: Theme.controlRadius
        color: row.down ? Theme.pressed : row.hovered ? Theme.hover : "transparent"
        FocusRing {
            visible: row.visualFocus
        }
    }
    Tip {
        control: row
        isDue: row.hovered && !row.down && !remove.hovered
        text: RowTexts.lines([path.truncated ? row.text : "", row.tip])
    }
}
