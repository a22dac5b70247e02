import QtQuick
import Quillmere

// Title, age of the result, and the commands of the whole screen.
ToolHead {
    id: header

    required property DiskAnalyzerView view
    readonly property ScanCommands scanCommands: scan

    title: view.title
    symbol: view.symbol

    ActionButton {
        objectName: "changeFolderButton"
        text: header.view.texts.changeFolder
        symbol: "folder.badge.gearshape"
        onClicked: header.view.changeFolder()
    }
    ScanCommands {
        id: scan
        isScanning: header.view.isScanning
        showsSpinner: header.view.hasEntry
        leastRoom: Theme.unit * 48
        busyText: header.view.texts.scanning
        canScan: header.view.canScan
        scanText: header.view.texts.rescan
        scanSymbol: "arrow.clockwise"
        stopText: header.view.texts.cancel
        stopTip: header.view.texts.cancelTip
        onStarted: header.view.rescan()
        onStopped: header.view.cancelScan()

        AgePill {
            visible: header.view.pill.isShown
            text: header.view.pill.text
            labels: header.view.pill.widestTexts
            tip: header.view.pill.tooltip
        }
    }
}
