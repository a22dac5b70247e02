import QtQuick
import QtQuick.Templates as T
import Quillmere

// A button with a word and, where one is told, a symbol.
T.Button {
    id: control

    property string symbol
    property string tip
    property bool isDestructive: false
    property bool isPrimary: false // what the screen is mostly for

    readonly property color inkColor: isPrimary ? Theme.accentText : isDestructive ? Theme.red : Theme.text

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Theme.controlHeight
    leftPadding: Theme.unit * 2.5
    rightPadding: Theme.unit * 2.5
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    opacity: enabled ? 1 : 0.5
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Row {
        spacing: Theme.unit * 1.5
        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            visible: control.symbol.length > 0
            name: control.symbol
            size: 14
            color: control.inkColor
        }
        BodyText {
            anchors.verticalCenter: parent.verticalCenter
            text: control.text
            color: control.inkColor
        }
    }
    background: Rectangle {
        radius: Theme.controlRadius
        color: control.isPrimary ? Theme.accent : Theme.raised
        border.color: control.isPrimary ? Theme.accent : Theme.line
        Rectangle {
            anchors.fill: parent
            radius: parent.radius
            color: control.down ? Theme.pressed : control.hovered ? Theme.hover : "transparent"
        }
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
