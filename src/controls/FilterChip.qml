import QtQuick
import QtQuick.Templates as T
import Quillmere

// One choice out of a row of them, with a count where one is told. The Tab key stops at the chosen one alone (see ChipRow).
T.AbstractButton {
    id: chip

    required property string label
    required property string countText
    required property bool isSelected

    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: 24
    leftPadding: Theme.unit * 2.5
    rightPadding: Theme.unit * 2.5
    hoverEnabled: true
    focusPolicy: isSelected ? Qt.StrongFocus : Qt.ClickFocus
    text: label
    checked: isSelected
    autoExclusive: true
    Accessible.role: Accessible.RadioButton
    Accessible.description: countText
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Row {
        spacing: Theme.unit * 1.5
        BodyText {
            anchors.verticalCenter: parent.verticalCenter
            text: chip.label
            color: chip.isSelected ? Theme.accent : Theme.text
            font.pixelSize: Theme.smallSize
        }
        BodyText {
            anchors.verticalCenter: parent.verticalCenter
            visible: text.length > 0
            text: chip.countText
            color: Theme.secondText
            font.pixelSize: Theme.captionSize
        }
    }
    background: Rectangle {
        radius: height / 2
        color: chip.isSelected ? Qt.tint(Theme.card, Qt.alpha(Theme.accent, 0.08)) : Theme.raised
        border.color: chip.isSelected ? Theme.accent : Theme.line
        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            visible: !chip.isSelected // a click on it does nothing
            color: chip.down ? Theme.pressed : chip.hovered ? Theme.hover : "transparent"
        }
        FocusRing {
            visible: chip.visualFocus
            radius: height / 2
        }
    }
}
