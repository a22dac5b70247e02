import QtQuick
import QtQuick.Templates as T
import Quillmere

// A folder to scan. A click changes it.
T.ItemDelegate {
    id: row

    required property int index
    required property string pathText
    required property DuplicateFinderView view

    signal changed
    signal removed

    width: ListView.view ? ListView.view.width : 0
    implicitHeight: Theme.controlHeight
    leftPadding: Theme.unit * 2
    rightPadding: 0
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    text: pathText
    Keys.onReturnPressed: changed()
    Keys.onEnterPressed: changed()
    Keys.onDeletePressed: removed()
    onClicked: changed()

    contentItem: Item {
        Symbol {
            id: icon
            anchors.verticalCenter: parent.verticalCenter
            name: "folder.fill"
            size: 14
            color: Theme.accent
        }
        BodyText {
            anchors.left: icon.right
            anchors.leftMargin: Theme.unit * 2
            anchors.right: remove.left
            anchors.verticalCenter: parent.verticalCenter
            text: row.pathText
            elide: Text.ElideMiddle
        }
        IconButton {
            id: remove
            objectName: "removeScanPath"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            symbol: "xmark.circle.fill"
            symbolSize: 13
            label: row.view.texts.removeScanPath
            tip: row.view.texts.removeScanPathTip
            onClicked: row.removed()
        }
    }
    background: Rectangle {
        radius: Theme.controlRadius
        color: row.down ? Theme.pressed : row.hovered ? Theme.hover : "transparent"
        FocusRing {
            visible: row.visualFocus
        }
    }
    Tip {
        control: row
        isDue: row.hovered && !row.down && !remove.hovered
        text: row.view.texts.changeFolderTip
    }
}
