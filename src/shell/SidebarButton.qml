import QtQuick
import QtQuick.Templates as T
import Quillmere

// One screen's row in the sidebar.
T.ItemDelegate {
    id: button

    required property int index
    required property string itemTitle
    required property string symbol
    required property string badge
    required property bool isSelected
    required property bool isCurrent // has the keyboard

    implicitHeight: Theme.rowHeight
    leftPadding: Theme.unit * 2.5
    rightPadding: Theme.unit * 2
    hoverEnabled: true
    focusPolicy: Qt.NoFocus // the list's to give
    text: itemTitle
    highlighted: isSelected
    Accessible.role: Accessible.ListItem
    Accessible.description: RowTexts.told(badge, RowTexts.place(index, ListView.view ? ListView.view.count : 0))
    Accessible.selectable: true
    Accessible.selected: isSelected
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Item {
        Symbol {
            id: icon
            anchors.verticalCenter: parent.verticalCenter
            name: button.symbol
            size: 15
            color: button.isSelected ? Theme.accent : Theme.secondText
        }
        BodyText {
            id: label
            anchors.left: icon.right
            anchors.leftMargin: Theme.unit * 2.5
            anchors.right: badgePill.visible ? badgePill.left : parent.right
            anchors.rightMargin: badgePill.visible ? Theme.unit : 0
            anchors.verticalCenter: parent.verticalCenter
            text: button.itemTitle
            font.weight: button.isSelected ? Font.DemiBold : Font.Normal
        }
        Badge {
            id: badgePill
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: button.badge
            tint: Theme.secondText
            isQuiet: true
        }
    }
    background: Pill {
        radius: Theme.controlRadius
        color: button.isSelected ? Theme.selected : button.down ? Theme.pressed
             : button.hovered ? Theme.hover : "transparent"
        FocusRing {
            visible: button.isCurrent
        }
    }
    Tip {
        control: button
        isDue: button.hovered && !button.down
        text: label.truncated ? button.itemTitle : ""
    }
}
