import QtQuick
import Quillmere

// The Disk Analyzer: head, way in, map and table.
FocusScope {
    id: screen

    required property DiskAnalyzerView view

    Shortcut {
        sequence: screen.view.refreshSequence
        onActivated: screen.view.refresh()
    }

    KeyboardHeir {
        screen: screen
        commands: header.scanCommands
        list: table.rows
        isWaiting: screen.view.isListAwaited
    }
    AnalyzerHeader {
        id: header
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: Theme.unit * 5
        view: screen.view
    }
    AccessBanner {
        id: banner
        anchors.left: header.left
        anchors.right: header.right
        anchors.top: header.bottom
        anchors.topMargin: visible ? Theme.unit * 3 : 0
        banner: screen.view.banner
    }
    AnalyzerPath {
        id: path
        anchors.left: header.left
        anchors.right: header.right
        anchors.top: banner.bottom
        anchors.topMargin: Theme.unit * 3
        view: screen.view
        onTopReached: table.forceActiveFocus(Qt.TabFocusReason)
    }
    Item {
        id: body
        anchors.left: header.left
        anchors.right: header.right
        anchors.top: path.bottom
        anchors.topMargin: Theme.unit * 3
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.unit * 5
        visible: screen.view.hasEntry

        AnalyzerMapCard {
            id: map
            width: parent.width
            height: Math.round(parent.height * 0.46)
            view: screen.view
        }
        AnalyzerContentsCard {
            id: table
            anchors.top: map.bottom
            anchors.topMargin: Theme.unit * 4
            anchors.bottom: parent.bottom
            width: parent.width
            focus: true
            view: screen.view
        }
    }
    ScanProgress {
        objectName: "analyzerProgress"
        anchors.fill: body
        visible: screen.view.isAnalyzing
        text: screen.view.texts.analyzing
        pathText: screen.view.progressText
    }
    Card {
        objectName: "analyzerStopped"
        anchors.fill: body
        visible: screen.view.stoppedText.length > 0
        EmptyState {
            anchors.centerIn: parent
            width: parent.width
            symbol: "folder"
            text: screen.view.stoppedText
            ActionButton {
                objectName: "scanAgain"
                anchors.horizontalCenter: parent.horizontalCenter
                visible: screen.view.hasStopped
                text: screen.view.texts.rescan
                symbol: "arrow.clockwise"
                onClicked: screen.view.rescan()
            }
        }
    }
}
