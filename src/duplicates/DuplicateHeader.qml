import QtQuick
import Quillmere

// Title, the figures of the result, and the commands of the whole screen.
Item {
    id: header

    required property DuplicateFinderView view

    implicitHeight: 40

    Row {
        id: title
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.unit * 2.5
        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: header.view.symbol
            size: 20
            color: Theme.accent
        }
        BodyText {
            anchors.verticalCenter: parent.verticalCenter
            text: header.view.title
            font.pixelSize: Theme.titleSize
            font.weight: Font.DemiBold
        }
    }
    Row {
        anchors.left: title.right
        anchors.leftMargin: Theme.unit * 8
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.unit * 6
        visible: header.view.hasFigures

        Figure {
            label: header.view.texts.groups
            value: header.view.groupsFigure
        }
        Figure {
            label: header.view.texts.files
            value: header.view.filesFigure
        }
        Figure {
            label: header.view.texts.wasted
            value: header.view.wastedFigure
            valueColor: Theme.amber
        }
        Figure {
            objectName: "toDeleteFigure"
            visible: value.length > 0
            label: header.view.texts.toDelete
            value: header.view.toDeleteFigure
            valueColor: Theme.red
        }
    }
    Row {
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.unit * 2

        ActionButton {
            objectName: "settingsButton"
            text: header.view.settingsText
            symbol: "gearshape"
            onClicked: header.view.toggleSettings()
        }
        ActionButton {
            objectName: "stopButton"
            visible: header.view.isScanning
            enabled: header.view.canStop
            text: header.view.stopText
            symbol: "xmark"
            tip: header.view.texts.stopTip
            onClicked: header.view.stop()
        }
        ActionButton {
            objectName: "scanButton"
            enabled: header.view.canScan
            text: header.view.scanText
            symbol: "magnifyingglass"
            isPrimary: true
            onClicked: header.view.scan()
        }
    }
}
