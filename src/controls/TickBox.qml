import QtQuick
import Quillmere

// A tick box, with a word beside it where one is told. It shows what it is given; a press asks for the other state.
ButtonBase {
    id: control

    required property bool isTicked
    property string label: text // for assistive technology

    readonly property int boxSize: 16

    implicitWidth: Math.min(boxSize + (text.length > 0 ? Theme.unit * 2 + Math.ceil(word.implicitWidth) : 0)
                            + leftPadding + rightPadding, 480)
    implicitHeight: 24
    leftPadding: Theme.unit
    rightPadding: Theme.unit
    isCut: word.truncated
    toldRole: Accessible.CheckBox
    Accessible.name: label
    toldChecked: isTicked

    contentItem: Item {
        Pill {
            id: box
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            width: control.boxSize
            height: control.boxSize
            radius: Theme.tileRadius
            color: !control.isTicked ? Theme.window : control.enabled ? Theme.accent : Theme.disabledText
            borderColor: control.isTicked ? color : control.enabled ? Theme.secondText : Theme.disabledText
            Symbol {
                anchors.centerIn: parent
                visible: control.isTicked
                name: "checkmark"
                size: 12
                color: control.enabled ? Theme.accentText : Theme.window
            }
        }
        BodyText {
            id: word
            anchors.left: box.right
            anchors.leftMargin: Theme.unit * 2
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: control.text
            color: control.enabled ? Theme.text : Theme.disabledText
        }
    }
}
