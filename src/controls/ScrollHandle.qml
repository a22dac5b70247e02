import QtQuick
import QtQuick.Templates as T
import Quillmere

// A slim scroll bar over the edge of what it scrolls.
T.ScrollBar {
    id: bar

    implicitWidth: Theme.unit * 2
    implicitHeight: Theme.unit * 2
    padding: 1
    minimumSize: 0.08
    Accessible.ignored: true // who sees no list needs no handle: the list follows the keys
    visible: policy !== T.ScrollBar.AlwaysOff && size < 1

    contentItem: Pill {
        implicitWidth: 6
        implicitHeight: 6
        color: bar.pressed ? Theme.secondText : bar.hovered ? Theme.disabledText : Theme.line
    }
}
