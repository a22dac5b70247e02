import QtQuick
import Quillmere

// One choice out of a row of them (ChipRow), with a count where one is told.
ButtonBase {
    id: chip

    required property string label
    required property string countText
    required property bool isSelected
    property bool isStop: isSelected // of the Tab key

    implicitHeight: 24
    leftPadding: Theme.unit * 2.5
    rightPadding: Theme.unit * 2.5
    focusPolicy: isStop || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
    text: label
    isCut: word.truncated
    toldRole: Accessible.RadioButton
    Accessible.description: countText
    toldChecked: isSelected

    contentItem: Item {
        implicitWidth: word.implicitWidth + count.room
        implicitHeight: word.implicitHeight
        BodyText {
            id: word
            anchors.left: parent.left
            anchors.baseline: parent.verticalCenter
            anchors.baselineOffset: TextRuler.baselineOffset(font)
            width: Math.min(implicitWidth, parent.width - count.room)
            text: chip.label
            color: !chip.enabled ? Theme.disabledText : chip.isSelected ? Theme.accent : Theme.text
            font.pixelSize: Theme.smallSize
        }
        BodyText {
            id: count
            readonly property int room: visible ? Math.ceil(implicitWidth) + Theme.unit * 1.5 : 0
            anchors.right: parent.right
            anchors.baseline: word.baseline
            visible: text.length > 0
            text: chip.countText
            color: chip.enabled ? Theme.secondText : Theme.disabledText
            font.pixelSize: Theme.captionSize
        }
    }
    background: Pill {
        color: chip.isSelected ? Qt.tint(Theme.card, Qt.alpha(Theme.accent, 0.08)) : Theme.raised
        borderColor: chip.isSelected ? Theme.accent : Theme.line
        Pill {
            anchors.fill: parent
            visible: (chip.down || chip.hovered) && !chip.isSelected // a click on that one does nothing
            color: chip.down ? Theme.pressed : Theme.hover
        }
        FocusRing {
            visible: chip.visualFocus
            radius: height / 2
        }
    }
}
