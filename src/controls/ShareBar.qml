import QtQuick
import Quillmere

// A bar that is filled to a share from 0 to 1.
Rectangle {
    id: bar

    required property double share
    property color fill: Theme.accent

    implicitHeight: 6
    radius: height / 2
    color: Theme.free
    Accessible.ignored: true

    Rectangle {
        width: Math.min(parent.width, Math.max(bar.share > 0 ? parent.height : 0, parent.width * bar.share))
        height: parent.height
        radius: parent.radius
        color: bar.fill
    }
}
