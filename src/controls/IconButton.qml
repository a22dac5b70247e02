import QtQuick
import Quillmere

// A button that is a symbol alone. `label` is its name for assistive technology. A toggle tells besides whether it is on.
ButtonBase {
    id: control

    required property string symbol
    required property string label
    property int symbolSize: 15
    property bool isToggle: false
    property bool isOn: false

    implicitWidth: Theme.controlHeight
    fill: isToggle && isOn && enabled ? Theme.selected : "transparent"
    outline: isToggle && isOn && !enabled ? Theme.line : "transparent"
    Accessible.name: label
    toldChecked: isToggle ? isOn : undefined

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: control.symbol
            size: control.symbolSize
            color: !control.enabled ? Theme.disabledText : control.isToggle && control.isOn ? Theme.accent
                 : control.hovered ? Theme.text : Theme.secondText
        }
    }
}
