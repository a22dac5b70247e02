import QtQuick
import QtQuick.Templates as T
import Quillmere

// One entry of the table. A click goes into a folder; the rest is in its menu.
T.ItemDelegate {
    id: row

    required property int index
    required property string symbol
    required property string entryName
    required property string sizeText
    required property string shareText
    required property double share
    required property bool isFolder
    required property string revealTip
    property bool isCurrent: false

    signal revealed
    signal menuRequested

    implicitHeight: Theme.rowHeight
    leftPadding: Theme.unit * 2
    rightPadding: Theme.unit * 2
    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    text: entryName
    Accessible.description: sizeText + ", " + shareText

    contentItem: Item {
        Symbol {
            id: icon
            anchors.verticalCenter: parent.verticalCenter
            name: row.symbol
            size: 15
            color: row.isFolder ? Theme.accent : Theme.secondText
        }
        BodyText {
            anchors.left: icon.right
            anchors.leftMargin: Theme.unit * 2.5
            anchors.right: size.left
            anchors.verticalCenter: parent.verticalCenter
            text: row.entryName
            elide: Text.ElideMiddle
        }
        BodyText {
            id: size
            anchors.right: part.left
            anchors.verticalCenter: parent.verticalCenter
            width: 90
            horizontalAlignment: Text.AlignRight
            text: row.sizeText
        }
        Item {
            id: part
            anchors.right: reveal.left
            width: 190
            height: parent.height
            ShareBar {
                anchors.left: parent.left
                anchors.leftMargin: Theme.unit * 6
                anchors.right: percent.left
                anchors.rightMargin: Theme.unit * 2
                anchors.verticalCenter: parent.verticalCenter
                share: row.share
            }
            BodyText {
                id: percent
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                width: 48
                horizontalAlignment: Text.AlignRight
                text: row.shareText
                color: Theme.secondText
                font.pixelSize: Theme.smallSize
            }
        }
        IconButton {
            id: reveal
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.controlHeight
            symbol: "arrow.up.right.square"
            symbolSize: 13
            label: row.revealTip
            tip: row.revealTip
            focusPolicy: Qt.NoFocus
            opacity: row.hovered || row.isCurrent ? 1 : 0
            onClicked: row.revealed()
        }
    }
    background: Rectangle {
        radius: Theme.controlRadius
        color: row.isCurrent ? Theme.selected : row.down ? Theme.pressed : row.hovered ? Theme.hover : "transparent"
    }
    // No TapHandler: it would make the row take the right button for a click of its own.
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.RightButton
        onClicked: row.menuRequested()
    }
}
