import QtQuick
import Quillmere

// A symbol that turns while work is under way. Its steps are few, since each one is painted by the processor where
// there is no graphics card.
Symbol {
    id: spinner

    property bool isRunning: true

    name: "arrow.clockwise"

    Timer {
        running: spinner.isRunning && spinner.visible
        interval: 80
        repeat: true
        onTriggered: spinner.rotation = (spinner.rotation + 30) % 360
        onRunningChanged: if (!running) spinner.rotation = 0
    }
}
