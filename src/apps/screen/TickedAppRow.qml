import QtQuick
import Quillmere

// A row of either list: a tick, what stands for the application, two lines of words, and two figures. What is in the pane
// stays lit while the keyboard is elsewhere. Its children stand behind the name.
ListRow {
    id: row

    required property string appName
    required property string spokenText
    required property bool isTicked
    required property bool isInPane
    required property AppManagerView view
    property string picture // a key; empty for none
    property string symbol  // in its place
    property string underline
    property string figure
    property string underFigure
    property alias mark: markRow.data

    signal ticked

    readonly property var toldChecked: view.canChoose ? isTicked : undefined

    implicitHeight: 52
    leftPadding: Theme.unit
    text: appName
    spoken: spokenText
    tip: hovered ? RowTexts.lines([name.truncated ? appName : "", second.truncated ? underline : ""]) : ""
    Accessible.role: Accessible.ListItem

    contentItem: Item {
        TickBox {
            id: tick
            objectName: "appTick"
            anchors.verticalCenter: parent.verticalCenter
            enabled: row.view.canChoose
            isTicked: row.isTicked
            label: row.appName
            focusPolicy: Qt.NoFocus
            onClicked: row.ticked()
        }
        Picture {
            id: shown
            anchors.left: tick.right
            anchors.leftMargin: Theme.unit * 2
            anchors.verticalCenter: parent.verticalCenter
            key: row.picture
            symbol: row.symbol
        }
        BodyText {
            id: name
            anchors.left: shown.right
            anchors.leftMargin: Theme.unit * 3
            y: Math.round(parent.height / 2) - height - 1
            width: Math.min(Math.ceil(implicitWidth), amount.x - x - Theme.unit * 3 - (markRow.width > 0 ? markRow.width + Theme.unit * 2 : 0))
            text: row.appName
            font.weight: Font.DemiBold
            elide: Text.ElideMiddle
        }
        Row {
            id: markRow
            anchors.left: name.right
            anchors.leftMargin: Theme.unit * 2
            anchors.verticalCenter: name.verticalCenter
        }
        BodyText {
            id: second
            anchors.left: name.left
            anchors.right: amount.left
            anchors.rightMargin: Theme.unit * 3
            anchors.top: name.bottom
            anchors.topMargin: 2
            text: row.underline
            color: Theme.secondText
            font.pixelSize: Theme.smallSize
            elide: Text.ElideMiddle
        }
        Item {
            id: amount
            anchors.right: parent.right
            anchors.rightMargin: Theme.unit
            width: 88
            height: parent.height
            BodyText {
                width: parent.width
                horizontalAlignment: Text.AlignRight
                y: name.y
                text: row.figure
                font.weight: Font.DemiBold
            }
            BodyText {
                width: parent.width
                horizontalAlignment: Text.AlignRight
                y: second.y
                text: row.underFigure
                color: Theme.secondText
                font.pixelSize: Theme.smallSize
            }
        }
    }
    background: RowBackground {
        isCurrent: row.isCurrent || row.isInPane
        isDown: row.down
        isHovered: row.hovered
        isMenuTarget: row.isMenuTarget
    }
}
