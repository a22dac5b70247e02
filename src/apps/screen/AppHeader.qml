import QtQuick
import Quillmere

// Title, the figures of both lists, and the commands of the whole screen.
ToolHead {
    id: header

    required property AppManagerView view
    readonly property ScanCommands scanCommands: scan

    title: view.title
    symbol: view.symbol

    figures: [
        Figure {
            label: header.view.texts.installed
            value: header.view.lists.installedFigure
            leastWidth: Theme.unit * 14
        },
        Figure {
            label: header.view.texts.totalSize
            value: header.view.lists.totalFigure
            leastWidth: Theme.unit * 18
        },
        Figure {
            label: header.view.texts.ghostFiles
            value: header.view.lists.ghostFigure
            leastWidth: Theme.unit * 18
        }
    ]

    ActionButton {
        objectName: "exportButton"
        text: header.view.texts.exportList
        symbol: "tablecells.fill"
        tip: header.view.tabTexts.exportTip
        onClicked: header.view.exportList()
    }
    ScanCommands {
        id: scan
        isScanning: header.view.isScanning
        showsSpinner: !header.view.isSearching
        leastRoom: Theme.unit * 36
        canScan: header.view.canRescan
        canStop: header.view.canStop
        scanText: header.view.texts.rescan
        scanSymbol: "arrow.clockwise"
        scanTip: header.view.tabTexts.rescanTip
        stopText: header.view.stopText
        stopLabels: header.view.stopLabels
        stopTip: header.view.texts.stopTip
        onStarted: header.view.rescan()
        onStopped: header.view.stop()
    }
}
