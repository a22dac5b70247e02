import QtQuick
import Quillmere

// Folds what stands below it away and out again. Without a text it is the chevron alone. `label` is its name for assistive
// technology, which may tell what a press would do.
ButtonBase {
    id: control

    required property bool isExpanded
    property string label: text
    property string symbol // ahead of the text
    property string closedSymbol: "chevron.right"
    property string openSymbol: "chevron.down"

    implicitWidth: Math.min(Math.ceil(implicitContentWidth) + leftPadding + rightPadding, 480)
    leftPadding: Theme.unit * 2
    rightPadding: Theme.unit * 2
    isCut: title.isCut
    Accessible.name: label

    contentItem: Item {
        implicitWidth: chevron.width + (title.implicitWidth > 0 ? Theme.unit * 2 + title.implicitWidth : 0)
        Symbol {
            id: chevron
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            name: control.isExpanded ? control.openSymbol : control.closedSymbol
            size: 12
            color: !control.enabled ? Theme.disabledText : control.hovered ? Theme.text : Theme.secondText
            // Where one reads from the right, what is closed points to the left.
            rotation: control.mirrored && !control.isExpanded && control.closedSymbol === "chevron.right" ? 180 : 0
        }
        ButtonLabel {
            id: title
            anchors.left: chevron.right
            anchors.leftMargin: Theme.unit * 2
            width: Math.min(implicitWidth, parent.width - chevron.width - Theme.unit * 2)
            height: parent.height
            symbol: control.symbol
            text: control.text
            color: control.enabled ? Theme.text : Theme.disabledText
        }
    }
}
