import QtQuick
import Quillmere

// A switch, at the end of its word where one is told. It shows what it is given; a press asks for the other state.
ButtonBase {
    id: control

    required property bool isOn
    property string label: text // for assistive technology

    readonly property int trackWidth: 32

    implicitWidth: Math.min(trackWidth + (text.length > 0 ? Theme.unit * 2 + Math.ceil(word.implicitWidth) : 0)
                            + leftPadding + rightPadding, 480)
    implicitHeight: 24
    leftPadding: Theme.unit
    rightPadding: Theme.unit
    isCut: word.truncated
    toldRole: Accessible.CheckBox
    Accessible.name: label
    toldChecked: isOn

    contentItem: Item {
        BodyText {
            id: word
            anchors.left: parent.left
            anchors.right: track.left
            anchors.rightMargin: Theme.unit * 2
            anchors.verticalCenter: parent.verticalCenter
            text: control.text
            color: control.enabled ? Theme.text : Theme.disabledText
        }
        Pill {
            id: track
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: control.trackWidth
            height: 18
            color: !control.isOn ? Theme.window : control.enabled ? Theme.accent : Theme.disabledText
            borderColor: control.isOn ? color : control.enabled ? Theme.secondText : Theme.disabledText
            Pill {
                x: control.isOn !== control.mirrored ? parent.width - width - 3 : 3
                y: 3
                width: 12
                height: 12
                color: !control.isOn ? track.borderColor : control.enabled ? Theme.accentText : Theme.window
                Behavior on x {
                    NumberAnimation {
                        duration: Theme.quick
                        easing.type: Easing.OutCubic
                    }
                }
            }
        }
    }
}
