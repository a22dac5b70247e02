import QtQuick
import Quillmere

// Title, the figures of the result, and the commands of the whole screen.
ToolHead {
    id: header

    required property SmartCleanupView view
    readonly property ScanCommands scanCommands: scan

    title: view.title
    symbol: view.symbol
    subtitle: view.texts.subtitle

    figures: [
        Figure {
            label: header.view.texts.categories
            value: header.view.categoriesFigure
        },
        Figure {
            label: header.view.texts.totalReclaimable
            value: header.view.totalFigure
            leastWidth: Theme.unit * 16
        },
        Figure {
            label: header.view.texts.selected
            value: header.view.selectedFigure
            valueColor: header.view.hasSelected ? Theme.accent : Theme.text
            leastWidth: Theme.unit * 18
        }
    ]

    ActionButton {
        objectName: "selectAllButton"
        enabled: header.view.canSelect
        text: header.view.texts.selectAll
        symbol: "checkmark.circle.fill"
        onClicked: header.view.selectAll()
    }
    ActionButton {
        objectName: "selectNoneButton"
        enabled: header.view.canSelect
        text: header.view.texts.selectNone
        symbol: "circle"
        onClicked: header.view.selectNone()
    }
    ScanCommands {
        id: scan
        isScanning: header.view.isScanning
        showsSpinner: header.view.hasList
        leastRoom: Theme.unit * 54
        busyText: header.view.texts.scanning
        canScan: header.view.canScan
        canStop: header.view.canStop
        scanText: header.view.texts.rescan
        scanSymbol: "arrow.clockwise"
        stopText: header.view.stopText
        stopLabels: header.view.stopLabels
        stopTip: header.view.texts.stopTip
        onStarted: header.view.rescan()
        onStopped: header.view.stop()

        AgePill {
            visible: header.view.pill.isShown
            text: header.view.pill.text
            tip: header.view.pill.tooltip
        }
    }
}
