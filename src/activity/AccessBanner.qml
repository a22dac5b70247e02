import QtQuick
import Quillmere

// The banner at the head of a tool's screen; no taller than nothing while there is nothing to say.
Pill {
    id: bar

    required property FDABanner banner

    objectName: "accessBanner"
    visible: banner.isShown
    implicitHeight: visible ? Math.max(row.implicitHeight + Theme.unit * 5, 56) : 0
    height: implicitHeight
    radius: Theme.cardRadius
    color: Theme.raised
    borderColor: banner.canBeHidden ? Theme.amber : Theme.green
    Accessible.role: Accessible.AlertMessage
    Accessible.name: banner.title
    Accessible.description: banner.text

    Symbol {
        id: icon
        anchors.left: parent.left
        anchors.leftMargin: Theme.unit * 4
        anchors.verticalCenter: parent.verticalCenter
        name: bar.banner.symbol
        size: 20
        color: bar.banner.canBeHidden ? Theme.amber : Theme.green
    }
    Column {
        id: row
        anchors.left: icon.right
        anchors.leftMargin: Theme.unit * 3
        anchors.right: action.left
        anchors.rightMargin: Theme.unit * 3
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2
        BodyText {
            width: parent.width
            text: bar.banner.title
            font.weight: Font.DemiBold
        }
        BodyText {
            width: parent.width
            text: bar.banner.text
            color: Theme.secondText
            font.pixelSize: Theme.smallSize
            wrapMode: Text.Wrap
            elide: Text.ElideNone
        }
    }
    ActionButton {
        id: action
        objectName: "bannerButton"
        anchors.right: hide.left
        anchors.rightMargin: Theme.unit
        anchors.verticalCenter: parent.verticalCenter
        text: bar.banner.buttonText
        symbol: bar.banner.buttonSymbol
        tip: bar.banner.buttonTip
        onClicked: bar.banner.act()
    }
    IconButton {
        id: hide
        objectName: "bannerHide"
        anchors.right: parent.right
        anchors.rightMargin: Theme.unit * 2
        anchors.verticalCenter: parent.verticalCenter
        width: visible ? implicitWidth : 0
        visible: bar.banner.canBeHidden
        symbol: "xmark"
        symbolSize: 12
        label: bar.banner.hideTip
        tip: bar.banner.hideTip
        onClicked: bar.banner.hide()
    }
}
