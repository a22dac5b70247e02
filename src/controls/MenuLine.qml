import QtQuick
import QtQuick.Templates as T
import Quillmere

// One command of a menu, with its key at the right where it has one.
T.MenuItem {
    id: line

    property string keysText
    property bool isDivider: false

    implicitWidth: isDivider ? 0 : title.implicitWidth + keys.implicitWidth + Theme.unit * 12
    implicitHeight: isDivider ? Theme.unit * 2 + 1 : 26
    leftPadding: Theme.unit * 2.5
    rightPadding: Theme.unit * 2.5
    hoverEnabled: true
    activeFocusOnTab: enabled // and so the arrows pass over the others
    Accessible.name: text
    Accessible.ignored: isDivider

    contentItem: Item {
        BodyText {
            id: title
            anchors.left: parent.left
            width: Math.min(implicitWidth, parent.width - keys.width - Theme.unit * 2)
            anchors.verticalCenter: parent.verticalCenter
            visible: !line.isDivider
            text: line.text
            color: line.enabled ? Theme.text : Theme.disabledText
        }
        BodyText {
            id: keys
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            visible: !line.isDivider
            text: line.keysText
            color: !line.enabled ? Theme.disabledText : line.highlighted ? Theme.text : Theme.secondText
            font.pixelSize: Theme.smallSize
        }
        Divider {
            anchors.verticalCenter: parent.verticalCenter
            width: parent.width
            visible: line.isDivider
        }
    }
    background: Pill {
        radius: Theme.tileRadius
        color: line.highlighted && line.enabled ? Theme.selected : "transparent"
    }
}
