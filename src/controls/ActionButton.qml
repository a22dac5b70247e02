import QtQuick
import QtQuick.Templates as T
import Quillmere

// A button with a word and, where one is told, a symbol. Its tooltip is the whole word where that is cut.
T.Button {
    id: control

    property string symbol
    property string tip
    property bool isDestructive: false
    property bool isPrimary: false // what the screen is mostly for
    property list<string> labels // all that it may read, where that changes: it keeps the room of the widest

    readonly property alias isCut: label.truncated
    readonly property int heldWidth: labels.length > 0 ? TextRuler.widest(labels, label.font) : 0
    readonly property color inkColor: isPrimary ? Theme.accentText : isDestructive ? Theme.red : Theme.text

    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Theme.controlHeight
    leftPadding: Theme.unit * 2.5
    rightPadding: Theme.unit * 2.5
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    opacity: enabled ? 1 : 0.5
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Item {
        implicitWidth: Math.max(label.implicitWidth, control.heldWidth) + label.x
        implicitHeight: label.implicitHeight
        Row {
            anchors.centerIn: parent
            spacing: Theme.unit * 1.5
            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                visible: control.symbol.length > 0
                name: control.symbol
                size: 14
                color: control.inkColor
            }
            BodyText {
                id: label
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, control.availableWidth - x)
                text: control.text
                color: control.inkColor
            }
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
        text: control.tip.length > 0 || !control.isCut ? control.tip : control.text
    }
}
