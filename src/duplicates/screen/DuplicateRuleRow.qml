import QtQuick
import Quillmere

// A rule that keeps a scan out of a folder.
Item {
    id: row

    required property int index
    required property string ruleText
    required property string symbol
    required property string tip
    required property bool isOverridden
    required property bool canBeRemoved
    required property DuplicateFinderView view

    signal removed

    width: ListView.view ? ListView.view.width : 0
    implicitHeight: Theme.controlHeight
    Accessible.role: Accessible.ListItem
    Accessible.name: row.isOverridden ? row.ruleText + " " + row.view.texts.overridden : row.ruleText
    Accessible.description: row.tip

    Rectangle {
        anchors.fill: parent
        radius: Theme.controlRadius
        color: pointer.hovered ? Theme.hover : "transparent"
    }
    Symbol {
        id: icon
        x: Theme.unit * 2
        anchors.verticalCenter: parent.verticalCenter
        name: row.symbol
        size: 13
        color: row.isOverridden ? Theme.amber : Theme.secondText
    }
    BodyText {
        id: rule
        anchors.left: icon.right
        anchors.leftMargin: Theme.unit * 2
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, row.width - x - remove.width - suffix.implicitWidth - Theme.unit * 2)
        text: row.ruleText
        color: row.isOverridden ? Theme.amber : Theme.text
        elide: Text.ElideMiddle
    }
    BodyText {
        id: suffix
        anchors.left: rule.right
        anchors.leftMargin: Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        visible: row.isOverridden
        text: row.view.texts.overridden
        color: Theme.amber
        font.pixelSize: Theme.smallSize
    }
    IconButton {
        id: remove
        objectName: "removeExclusion"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: row.canBeRemoved
        symbol: "xmark"
        symbolSize: 12
        label: row.view.texts.removeExclusionTip
        tip: row.view.texts.removeExclusionTip
        onClicked: row.removed()
    }
    HoverHandler {
        id: pointer
    }
    Tip {
        control: row
        isDue: pointer.hovered
        text: row.tip
    }
}
