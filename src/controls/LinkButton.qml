import QtQuick
import Quillmere

// A command that reads as a word of the text around it.
ButtonBase {
    id: control

    implicitWidth: Math.min(Math.ceil(implicitContentWidth) + leftPadding + rightPadding, 480)
    implicitHeight: 22
    leftPadding: Theme.unit
    rightPadding: Theme.unit
    corner: Theme.tileRadius
    isCut: label.isCut
    toldRole: Accessible.Link

    contentItem: ButtonLabel {
        id: label
        text: control.text
        color: control.enabled ? Theme.accent : Theme.disabledText
        font.pixelSize: Theme.smallSize
        font.underline: control.hovered
    }
}
