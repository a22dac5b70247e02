import QtQuick
import QtQuick.Templates as T
import Quillmere

// A button that is a symbol alone. `label` is its name for assistive technology.
T.Button {
    id: control

    required property string symbol
    required property string label
    required property string tip
    property int symbolSize: 15

    implicitWidth: Theme.controlHeight
    implicitHeight: Theme.controlHeight
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    opacity: enabled ? 1 : 0.4
    Accessible.name: label
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: control.symbol
            size: control.symbolSize
            color: control.hovered ? Theme.text : Theme.secondText
        }
    }
    background: Rectangle {
        radius: Theme.controlRadius
        color: control.down ? Theme.pressed : control.hovered ? Theme.hover : "transparent"
        FocusRing {
            visible: control.visualFocus
        }
    }
    Tip {
        control: control
        isDue: control.hovered && !control.down
        text: control.tip
    }
}
