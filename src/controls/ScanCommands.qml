import QtQuick
import Quillmere

// The command that starts a scan and, at its left, the one that stops it. They stand at one place on every screen, and the
// room of Stop is kept while no scan runs, so that nothing moves under the pointer; what is told of the last result may
// stand in it meanwhile.
Row {
    id: commands

    required property bool isScanning
    required property bool canScan
    property bool canStop: true
    required property string scanText
    required property string scanSymbol
    property list<string> scanLabels // all that `scanText` may read
    property string scanTip
    required property string stopText
    required property string stopTip
    property list<string> stopLabels
    property string busyText         // at the left of Stop
    property bool showsSpinner: false // where no other is on view
    property int leastRoom: 0 // at the left of the start, for all that may stand there
    property bool isPrimary: false
    property alias startButton: start
    property alias stopButton: stop
    default property alias rest: restRow.data // in the room of Stop while no scan runs

    signal started
    signal stopped

    spacing: Theme.unit * 2

    Item {
        width: Math.ceil(Math.max(busyRow.width, restRow.width, commands.leastRoom))
        height: Theme.controlHeight

        Row {
            id: restRow
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            visible: !commands.isScanning
            spacing: Theme.unit * 2
        }
        Row {
            id: busyRow
            anchors.right: parent.right
            visible: commands.isScanning
            spacing: Theme.unit * 2
            LoadingLine {
                anchors.verticalCenter: parent.verticalCenter
                visible: text.length > 0
                text: commands.busyText
                hasSpinner: commands.showsSpinner
                size: 13
            }
            ActionButton {
                id: stop
                objectName: "stopButton"
                enabled: commands.isScanning && commands.canStop
                text: commands.stopText
                labels: commands.stopLabels
                symbol: "xmark"
                tip: enabled ? commands.stopTip : ""
                onClicked: commands.stopped()
            }
        }
    }
    ActionButton {
        id: start
        objectName: "scanButton"
        width: Math.max(implicitWidth, Theme.unit * 28) // the same for all the words that tools have for it
        enabled: commands.canScan
        text: commands.scanText
        labels: commands.scanLabels
        symbol: commands.scanSymbol
        tip: enabled ? commands.scanTip : ""
        isPrimary: commands.isPrimary
        onClicked: commands.started()
    }
}
