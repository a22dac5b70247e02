pragma ComponentBehavior: Bound

import QtQuick
import Quillmere

// A few choices side by side, of which one is in force. The arrows choose. Where only symbols are shown the labels are their
// names and tooltips.
FocusRow {
    id: segments

    required property string label // of all together, for assistive technology
    required property var labels   // texts
    required property int currentIndex
    property var symbols: []
    property bool areTextsShown: true

    signal chosen(int index)

    implicitHeight: Theme.controlHeight
    stop: Math.max(0, Math.min(currentIndex, count - 1))
    model: labels
    onMoved: index => chosen(index)
    Accessible.role: Accessible.Grouping
    Accessible.name: label

    Pill {
        z: -1
        anchors.left: parent.left
        width: segments.implicitWidth
        height: parent.height
        radius: Theme.controlRadius
        color: Theme.raised
        borderColor: Theme.line
    }
    delegate: ButtonBase {
        id: segment

        required property int index
        required property string modelData

        readonly property bool isChosen: index === segments.currentIndex

        implicitWidth: Math.min(Math.ceil(implicitContentWidth) + leftPadding + rightPadding, 240)
        height: segments.height
        leftPadding: Theme.unit * 2.5
        rightPadding: Theme.unit * 2.5
        focusPolicy: index === segments.stop || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
        text: modelData
        tip: segments.areTextsShown ? "" : modelData
        isCut: label.isCut
        fill: isChosen ? Qt.tint(Theme.card, Qt.alpha(Theme.accent, 0.08)) : "transparent"
        outline: !isChosen ? "transparent" : enabled ? Theme.accent : Theme.line
        toldRole: Accessible.RadioButton
        toldChecked: isChosen
        onClicked: segments.chosen(index)

        contentItem: ButtonLabel {
            id: label
            symbol: segments.symbols[segment.index] ?? ""
            text: segments.areTextsShown ? segment.text : ""
            color: !segment.enabled ? Theme.disabledText : segment.isChosen && !segment.down ? Theme.accent : Theme.text
            font.pixelSize: Theme.smallSize
        }
    }
}
