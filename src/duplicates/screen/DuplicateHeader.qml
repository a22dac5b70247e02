import QtQuick
import Quillmere

// Title, the figures of the result, and the commands of the whole screen.
Item {
    id: header

    required property DuplicateFinderView view

    readonly property int lineHeight: Theme.unit * 10
    // In a narrow window the figures have a line of their own.
    readonly property bool isNarrow: title.width + figures.width + buttons.width + Theme.unit * 16 > width

    implicitHeight: isNarrow ? lineHeight * 2 + Theme.unit : lineHeight

    Row {
        id: title
        height: header.lineHeight
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
        id: figures
        x: header.isNarrow ? 0 : title.width + Theme.unit * 8
        y: (header.lineHeight - height) / 2 + (header.isNarrow ? header.lineHeight + Theme.unit : 0)
        spacing: Theme.unit * 6

        DuplicateFigure {
            label: header.view.texts.groups
            value: header.view.groupsFigure
        }
        DuplicateFigure {
            label: header.view.texts.files
            value: header.view.filesFigure
        }
        DuplicateFigure {
            label: header.view.texts.wasted
            value: header.view.wastedFigure
            valueColor: Theme.amber
        }
        DuplicateFigure {
            objectName: "toDeleteFigure"
            visible: value.length > 0
            label: header.view.texts.toDelete
            value: header.view.toDeleteFigure
            valueColor: Theme.red
        }
    }
    Row {
        id: buttons
        anchors.right: parent.right
        y: (header.lineHeight - height) / 2
        spacing: Theme.unit * 2

        BodyText {
            anchors.verticalCenter: parent.verticalCenter
            visible: text.length > 0
            rightPadding: Theme.unit
            text: header.view.endText
            color: Theme.amber
        }
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
            tip: enabled ? header.view.texts.stopTip : ""
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
