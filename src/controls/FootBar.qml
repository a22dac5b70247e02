import QtQuick
import Quillmere

// A bar at the foot of a screen: what a command is about to act on, and the command. While the run is on it tells how far
// that is.
Card {
    id: bar

    required property string text
    required property string symbol
    property color tint: Theme.accent
    property bool isBusy: false
    property alias action: actionButton // the command itself
    default property alias extra: row.data // at its left

    signal acted

    implicitHeight: 48
    height: visible ? implicitHeight : 0
    borderColor: isBusy ? Theme.line : tint

    Symbol {
        id: icon
        anchors.left: parent.left
        anchors.leftMargin: Theme.unit * 4
        anchors.verticalCenter: parent.verticalCenter
        visible: !bar.isBusy
        name: bar.symbol
        size: 16
        color: bar.tint
    }
    Spinner {
        x: icon.x
        anchors.verticalCenter: parent.verticalCenter
        visible: bar.isBusy
        size: 16
    }
    BodyText {
        objectName: "footText"
        anchors.left: icon.right
        anchors.leftMargin: Theme.unit * 3
        anchors.right: row.left
        anchors.rightMargin: Theme.unit * 3
        anchors.verticalCenter: parent.verticalCenter
        text: bar.text
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    Row {
        id: row
        anchors.right: actionButton.left
        anchors.rightMargin: width > 0 ? Theme.unit * 2 : 0
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.unit * 2
    }
    ActionButton {
        id: actionButton
        anchors.right: parent.right
        anchors.rightMargin: Theme.unit * 2.5
        anchors.verticalCenter: parent.verticalCenter
        onClicked: bar.acted()
    }
}
