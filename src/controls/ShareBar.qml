import QtQuick
import Quillmere

// A bar that is filled to a share from 0 to 1. What is above 0 shows, if only as a sliver; a sliver is lower than the bar, so
// that it stays inside of its round end.
Pill {
    id: bar

    required property double share
    property color fill: Theme.accent

    implicitHeight: 6
    color: Theme.line // and not a wash's, or it would be gone under the pointer
    Accessible.ignored: true

    Pill {
        objectName: "shareFill"
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        width: bar.share > 0 ? Math.min(parent.width, Math.max(2, Math.round(parent.width * bar.share))) : 0
        height: width < parent.height ? parent.height - 2 : parent.height
        color: bar.fill
    }
}
