import QtQuick
import Quillmere

// Title, the figures of the result, and the commands of the whole screen.
ToolHead {
    id: header

    required property DuplicateFinderView view
    readonly property ScanCommands scanCommands: scan

    title: view.title
    symbol: view.symbol

    figures: [
        Figure {
            label: header.view.texts.groups
            value: header.view.groupsFigure
        },
        Figure {
            label: header.view.texts.files
            value: header.view.filesFigure
        },
        Figure {
            label: header.view.texts.wasted
            value: header.view.wastedFigure
            valueColor: header.view.hasWaste ? Theme.amber : Theme.text
            leastWidth: Theme.unit * 16
        },
        // Its room is kept, so that a click on a file moves nothing.
        Item {
            width: Math.max(toDelete.width, Theme.unit * 40)
            height: toDelete.height
            Figure {
                id: toDelete
                objectName: "toDeleteFigure"
                visible: value.length > 0
                label: header.view.texts.toDelete
                value: header.view.toDeleteFigure
                valueColor: Theme.redText
            }
        }
    ]

    ActionButton {
        objectName: "settingsButton"
        text: header.view.settingsText
        labels: header.view.settingsLabels
        symbol: "gearshape"
        onClicked: header.view.toggleSettings()
    }
    ScanCommands {
        id: scan
        isScanning: header.view.isScanning
        canScan: header.view.canScan
        canStop: header.view.canStop
        scanText: header.view.scanText
        scanLabels: header.view.scanLabels
        scanSymbol: "magnifyingglass"
        stopText: header.view.stopText
        stopLabels: header.view.stopLabels
        stopTip: header.view.texts.stopTip
        isPrimary: true
        onStarted: header.view.scan()
        onStopped: header.view.stop()

        BodyText {
            text: header.view.endText
            color: Theme.amber
        }
    }
}
