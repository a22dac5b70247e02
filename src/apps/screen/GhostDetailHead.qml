pragma ComponentBehavior: Bound

import QtQuick
import Quillmere

// What stands over the files of a ghost: its name, its badge and what that means, its figures, and what each kind takes.
Column {
    id: head

    required property AppManagerView view
    readonly property GhostDetail detail: view.ghostDetail

    leftPadding: Theme.unit * 2
    rightPadding: Theme.unit * 2
    topPadding: Theme.unit * 4
    bottomPadding: Theme.unit
    spacing: Theme.unit

    readonly property int room: width - leftPadding - rightPadding

    Item {
        width: head.room
        height: 44
        Symbol {
            id: icon
            anchors.verticalCenter: parent.verticalCenter
            name: "ghost"
            size: 32
        }
        ElidedText {
            id: name
            objectName: "ghostName"
            anchors.left: icon.right
            anchors.leftMargin: Theme.unit * 3
            y: 2
            width: Math.min(Math.ceil(implicitWidth), parent.width - x - badge.width - Theme.unit * 2)
            text: head.detail.name
            font.pixelSize: 16
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Badge {
            id: badge
            anchors.left: name.right
            anchors.leftMargin: Theme.unit * 2
            anchors.verticalCenter: name.verticalCenter
            text: head.detail.badgeText
            tint: head.detail.looksInstalled ? Theme.amber : Theme.secondText
        }
        ElidedText {
            anchors.left: name.left
            anchors.right: parent.right
            anchors.top: name.bottom
            anchors.topMargin: 2
            text: head.detail.bundleID
            color: Theme.secondText
            font.pixelSize: Theme.smallSize
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
    }
    BodyText {
        width: head.room
        text: head.detail.badgeNote
        color: head.detail.looksInstalled ? Theme.amber : Theme.secondText
        font.pixelSize: Theme.smallSize
        wrapMode: Text.Wrap
        bottomPadding: Theme.unit * 2
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    Row {
        spacing: Theme.unit * 6
        bottomPadding: Theme.unit * 2
        Figure {
            label: head.view.texts.files
            value: head.detail.filesFigure
        }
        Figure {
            label: head.view.texts.categories
            value: head.detail.categoriesFigure
        }
        Figure {
            label: head.view.texts.total
            value: head.detail.totalFigure
        }
    }
    AppSectionHead {
        width: head.room
        text: head.view.texts.sizeByCategory
    }
    Repeater {
        model: head.detail.categories
        AppAmountRow {
            width: head.room
            required symbol
        }
    }
    Item {
        width: 1
        height: Theme.unit
    }
    AppSectionHead {
        width: head.room
        text: head.view.texts.filesHead
        LinkButton {
            objectName: "selectAllFiles"
            enabled: head.view.canChoose
            text: head.view.texts.selectAll
            onClicked: head.view.selectAllFiles(true)
        }
        LinkButton {
            objectName: "selectNoFiles"
            enabled: head.view.canChoose
            text: head.view.texts.selectNone
            onClicked: head.view.selectAllFiles(false)
        }
    }
}
