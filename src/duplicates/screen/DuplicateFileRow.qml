import QtQuick
import QtQuick.Templates as T
import Quillmere

// One file of a group. A click lets it stay or go.
T.ItemDelegate {
    id: row

    required property string detail
    required property string trailing
    required property bool isKept
    required property string badge
    required property string badgeSymbol
    required property string tip
    required property string spoken
    required property bool isCurrent
    required property string revealTip

    signal revealed
    signal menuRequested

    leftPadding: Theme.unit * 2
    rightPadding: Theme.unit * 2
    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    opacity: enabled ? 1 : 0.5
    Accessible.description: spoken

    contentItem: Item {
        Badge {
            id: pill
            anchors.verticalCenter: parent.verticalCenter
            width: 82
            text: row.badge
            symbol: row.badgeSymbol
            tint: row.isKept ? Theme.green : Theme.red
        }
        Column {
            anchors.left: pill.right
            anchors.leftMargin: Theme.unit * 3
            anchors.right: date.left
            anchors.rightMargin: Theme.unit * 3
            anchors.verticalCenter: parent.verticalCenter
            BodyText {
                width: parent.width
                text: row.text
                elide: Text.ElideMiddle
            }
            BodyText {
                width: parent.width
                text: row.detail
                color: Theme.secondText
                font.pixelSize: Theme.smallSize
                elide: Text.ElideMiddle
            }
        }
        BodyText {
            id: date
            anchors.right: reveal.left
            anchors.rightMargin: Theme.unit * 2
            anchors.verticalCenter: parent.verticalCenter
            horizontalAlignment: Text.AlignRight
            text: row.trailing
            color: Theme.secondText
            font.pixelSize: Theme.smallSize
        }
        IconButton {
            id: reveal
            objectName: "revealFile"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            symbol: "folder"
            symbolSize: 14
            label: row.revealTip
            tip: row.revealTip
            focusPolicy: Qt.NoFocus
            onClicked: row.revealed()
        }
    }
    background: Rectangle {
        radius: Theme.controlRadius
        color: row.isCurrent ? Theme.selected : row.down ? Theme.pressed : row.hovered ? Theme.hover : "transparent"
    }
    Tip {
        control: row
        isDue: row.enabled && row.hovered && !row.down && !reveal.hovered
        text: row.tip
    }
    // No TapHandler: it would make the row take the right button for a click of its own.
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.RightButton
        onClicked: row.menuRequested()
    }
}
