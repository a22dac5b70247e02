import QtQuick
import QtQuick.Templates as T
import Quillmere

// A slim scroll bar over the edge of what it scrolls.
T.ScrollBar {
    id: bar

    implicitWidth: Theme.unit * 2 - 1
    implicitHeight: Theme.unit * 2 - 1
    padding: 1
    minimumSize: 0.08
    Accessible.ignored: true // who sees no list needs no handle: the list follows the keys
    visible: policy !== T.ScrollBar.AlwaysOff && size < 1

    contentItem: Pill {
        implicitWidth: 5
        implicitHeight: 5
        color: bar.pressed ? Theme.text : bar.hovered ? Theme.secondText : Theme.disabledText
    }
}
