import QtQuick
import Quillmere

// Title, age of the result, and the commands of the whole screen.
Item {
    id: header

    required property DiskAnalyzerView view

    implicitHeight: Theme.controlHeight

    Row {
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
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.unit * 2

        AgePill {
            anchors.verticalCenter: parent.verticalCenter
            pill: header.view.pill
        }
        Spinner {
            anchors.verticalCenter: parent.verticalCenter
            visible: header.view.isScanning
            size: 13
        }
        BodyText {
            anchors.verticalCenter: parent.verticalCenter
            visible: header.view.isScanning
            text: header.view.texts.scanning
            color: Theme.secondText
        }
        ActionButton {
            objectName: "cancelButton"
            visible: header.view.isScanning
            text: header.view.texts.cancel
            symbol: "xmark"
            tip: header.view.texts.cancelTip
            onClicked: header.view.cancelScan()
        }
        ActionButton {
            objectName: "changeFolderButton"
            text: header.view.texts.changeFolder
            symbol: "folder.badge.gearshape"
            onClicked: header.view.changeFolder()
        }
        ActionButton {
            objectName: "rescanButton"
            text: header.view.texts.rescan
            symbol: "arrow.clockwise"
            onClicked: header.view.rescan()
        }
    }
}
