import QtQuick
import Quillmere

// A file that goes with an application, or stays. A click anywhere on the row ticks it.
ListRow {
    id: row

    required property string fileName
    required property string path
    required property string symbol
    required property string sizeText
    required property string spokenText
    required property bool isTicked
    required property bool canChoose

    readonly property var toldChecked: canChoose ? isTicked : undefined

    implicitHeight: 44
    leftPadding: Theme.unit
    text: fileName
    spoken: spokenText
    tip: hovered ? RowTexts.lines([name.truncated ? fileName : "", where.truncated ? path : ""]) : ""
    Accessible.role: Accessible.ListItem

    contentItem: Item {
        TickBox {
            id: tick
            objectName: "fileTick"
            anchors.verticalCenter: parent.verticalCenter
            enabled: row.canChoose
            isTicked: row.isTicked
            label: row.fileName
            focusPolicy: Qt.NoFocus
            onClicked: row.clicked()
        }
        Symbol {
            id: icon
            anchors.left: tick.right
            anchors.leftMargin: Theme.unit
            anchors.verticalCenter: parent.verticalCenter
            name: row.symbol
            size: 15
        }
        BodyText {
            id: name
            anchors.left: icon.right
            anchors.leftMargin: Theme.unit * 2
            anchors.right: amount.left
            anchors.rightMargin: Theme.unit * 2
            y: Math.round(parent.height / 2) - height
            text: row.fileName
            elide: Text.ElideMiddle
        }
        BodyText {
            id: where
            anchors.left: name.left
            anchors.right: name.right
            anchors.top: name.bottom
            text: row.path
            color: Theme.secondText
            font.pixelSize: Theme.smallSize
            elide: Text.ElideMiddle
        }
        BodyText {
            id: amount
            anchors.right: parent.right
            width: 72
            height: parent.height
            horizontalAlignment: Text.AlignRight
            text: row.sizeText
        }
    }
}
