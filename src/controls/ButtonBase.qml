import QtQuick
import QtQuick.Templates as T
import Quillmere

// What all that is pressed has in common: Space, Return and the keypad's Enter press it, and it has a tooltip, which tells the
// whole text where that has no room. What has a state, such as a tick, shows the one that it is given; a press only asks.
T.Button {
    id: control

    property string tip
    property bool isCut: false // its text has no room
    property color fill: "transparent"
    property color outline: "transparent"
    property int corner: Theme.controlRadius
    property int toldRole: Accessible.Button // the toolkit gives a button of its own no other role than that
    property var toldChecked // true or false where it has a tick or is one of several; the toolkit tells its own state alone

    implicitWidth: Math.ceil(implicitContentWidth) + leftPadding + rightPadding
    implicitHeight: Theme.controlHeight
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    Accessible.role: toldRole
    Accessible.name: text
    Accessible.checkable: toldChecked !== undefined
    Accessible.checked: toldChecked === true
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    background: ButtonFace {
        radius: control.corner
        color: control.fill
        outline: control.outline
        isHovered: control.hovered
        isDown: control.down
        hasRing: control.visualFocus
    }
    // Of a disabled one as well: it may tell why it is.
    HoverHandler {
        id: pointer
    }
    Tip {
        control: control
        isDue: pointer.hovered && !control.down
        text: control.tip.length > 0 ? control.tip : control.isCut ? control.text : ""
    }
}
