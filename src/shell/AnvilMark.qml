pragma ComponentBehavior: Bound

import QtQuick
import Quillmere

// The program's mark: an anvil on a plate, from plain rectangles, so that it is sharp at every size.
Rectangle {
    id: mark

    readonly property real step: width / 26

    radius: 6 * step
    color: Theme.accent
    Accessible.ignored: true

    Repeater {
        // x, y, width, height: horn, face, waist, foot.
        model: [[4, 8, 5, 3], [8, 7, 14, 5], [12, 12, 6, 4], [9, 16, 12, 3]]
        Rectangle {
            required property var modelData
            x: modelData[0] * mark.step
            y: modelData[1] * mark.step
            width: modelData[2] * mark.step
            height: modelData[3] * mark.step
            radius: mark.step
            color: Theme.isDark ? "#0d1117" : "#ffffff"
        }
    }
}
