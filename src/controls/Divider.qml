import QtQuick
import Quillmere

// A line that parts two grounds, as thick at every scale and place as the frames are: whole pixels. One that goes across is
// given a width, an upright one a height.
Pill {
    readonly property real thickness: Math.max(1, Math.floor(Screen.devicePixelRatio)) / Screen.devicePixelRatio

    implicitWidth: thickness
    implicitHeight: thickness
    radius: 0
    color: Theme.line
}
