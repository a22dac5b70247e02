import QtQuick
import Quillmere

// What a row shows of a category.
Item {
    id: head

    required property string title
    required property string detail
    required property string trailing
    required property string trailingDetail
    required property string symbol
    required property string badge
    required property bool isSafe
    required property string note
    required property bool isTicked
    required property bool isLocked
    required property bool isExpanded
    required property string previewTip
    required property SmartCleanupView view

    signal ticked
    signal previewed
    signal revealed

    TickBox {
        id: tick
        objectName: "categoryTick"
        x: Theme.unit * 2
        anchors.verticalCenter: parent.verticalCenter
        enabled: !head.isLocked && head.view.canChoose
        isTicked: head.isTicked
        label: head.title
        tip: head.isLocked ? head.note : ""
        focusPolicy: Qt.NoFocus
        onClicked: head.ticked()
    }
    // A tick that rests says so, and a click on it is none on the row behind it.
    Symbol {
        objectName: "categoryLock"
        anchors.centerIn: tick
        visible: head.isLocked && !head.isTicked
        name: "lock.fill"
        size: 9
        color: Theme.secondText
    }
    MouseArea {
        anchors.fill: tick
        enabled: !tick.enabled
    }
    Symbol {
        id: icon
        anchors.left: tick.right
        anchors.leftMargin: Theme.unit * 2
        anchors.verticalCenter: parent.verticalCenter
        name: head.symbol
        size: 18
        color: Theme.accent
    }
    BodyText {
        id: caption
        anchors.left: icon.right
        anchors.leftMargin: Theme.unit * 3
        y: Math.round(parent.height / 2) - height - 1
        text: head.title
        font.weight: Font.DemiBold
    }
    Badge {
        objectName: "categoryBadge"
        anchors.left: caption.right
        anchors.leftMargin: Theme.unit * 2
        anchors.verticalCenter: caption.verticalCenter
        text: head.badge
        tint: head.isSafe ? Theme.green : Theme.amber
        tip: head.note
    }
    BodyText {
        anchors.left: caption.left
        anchors.right: amount.left
        anchors.rightMargin: Theme.unit * 3
        anchors.top: caption.bottom
        anchors.topMargin: 2
        text: head.detail
        color: Theme.secondText
        font.pixelSize: Theme.smallSize
    }
    Item {
        id: amount
        anchors.right: buttons.left
        anchors.rightMargin: Theme.unit * 3
        width: 96
        height: parent.height
        BodyText {
            anchors.right: parent.right
            y: caption.y
            text: head.trailing
            font.weight: Font.DemiBold
        }
        BodyText {
            anchors.right: parent.right
            y: caption.y + caption.height + 2
            text: head.trailingDetail
            color: Theme.secondText
            font.pixelSize: Theme.smallSize
        }
    }
    Row {
        id: buttons
        anchors.right: parent.right
        anchors.rightMargin: Theme.unit * 2
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.unit
        Disclosure {
            objectName: "previewButton"
            isExpanded: head.isExpanded
            text: head.view.texts.previewFiles
            tip: head.previewTip
            focusPolicy: Qt.NoFocus
            onClicked: head.previewed()
        }
        IconButton {
            objectName: "revealCategory"
            symbol: "folder"
            symbolSize: 14
            label: head.view.texts.reveal
            tip: head.view.texts.reveal
            focusPolicy: Qt.NoFocus
            onClicked: head.revealed()
        }
    }
}
