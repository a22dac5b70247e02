import QtQuick
import Quillmere

// A small ring that fills with what is done, or turns where nobody knows how much that is. Its steps are few, since each one
// is painted by the processor where there is no graphics card.
RingArc {
    id: ring

    property double value: 0 // from 0 to 1
    property bool isTurning: false
    property string label // for assistive technology; without one a word beside it tells

    implicitWidth: 14
    implicitHeight: 14
    share: isTurning ? 0.28 : value
    color: Theme.accent
    track: Theme.line
    Accessible.role: Accessible.ProgressBar
    Accessible.name: label
    Accessible.ignored: label.length === 0

    Timer {
        running: ring.isTurning && ring.visible
        interval: 80
        repeat: true
        onTriggered: ring.start += 30
        onRunningChanged: if (!running) ring.start = 0
    }
}
