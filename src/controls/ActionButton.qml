import QtQuick
import Quillmere

// A button with a word and, where one is told, a symbol. While its command is at work a ring turns in place of the symbol.
ButtonBase {
    id: control

    property string symbol
    property bool isDestructive: false
    property bool isPrimary: false // what the screen is mostly for
    property bool isBusy: false
    property list<string> labels // all that it may read, where that changes: it keeps the room of the widest

    readonly property int heldWidth: labels.length > 0 ? label.lead + TextRuler.widest(labels, label.font) : 0
    readonly property color inkColor: !enabled ? Theme.disabledText : isPrimary ? Theme.accentText
                                    : isDestructive ? Theme.redText : Theme.text

    implicitWidth: Math.min(Math.max(Math.ceil(implicitContentWidth), heldWidth) + leftPadding + rightPadding, 480)
    leftPadding: Theme.unit * 2.5
    rightPadding: Theme.unit * 2.5
    fill: isPrimary && enabled ? Theme.accent : Theme.raised
    outline: isPrimary && enabled ? Theme.accent : Theme.line
    isCut: label.isCut

    contentItem: ButtonLabel {
        id: label
        symbol: control.symbol
        isBusy: control.isBusy
        text: control.text
        color: control.inkColor
    }
}
