pragma ComponentBehavior: Bound

import QtQuick
import Quillmere

// The tabs over a page that changes with them. The arrows choose.
FocusRow {
    id: strip

    required property string label // of all together, for assistive technology
    required property var labels   // texts
    required property int currentIndex
    property var symbols: []

    signal chosen(int index)

    implicitHeight: 34
    spacing: Theme.unit
    stop: Math.max(0, Math.min(currentIndex, count - 1))
    model: labels
    onMoved: index => chosen(index)
    Accessible.role: Accessible.PageTabList
    Accessible.name: label

    Divider {
        anchors.bottom: parent.bottom
        z: -1
        width: parent.width
    }
    delegate: ButtonBase {
        id: tab

        required property int index
        required property string modelData

        readonly property bool isChosen: index === strip.currentIndex

        implicitWidth: Math.min(Math.ceil(implicitContentWidth) + leftPadding + rightPadding, 240)
        height: strip.height
        leftPadding: Theme.unit * 3
        rightPadding: Theme.unit * 3
        focusPolicy: index === strip.stop || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
        text: modelData
        isCut: label.isCut
        toldRole: Accessible.PageTab
        Accessible.selectable: true
        Accessible.selected: isChosen
        onClicked: strip.chosen(index)

        contentItem: ButtonLabel {
            id: label
            symbol: strip.symbols[tab.index] ?? ""
            text: tab.text
            color: !tab.enabled ? Theme.disabledText : tab.isChosen || tab.hovered ? Theme.text : Theme.secondText
        }
        Rectangle {
            anchors.bottom: parent.bottom
            width: parent.width
            height: 2
            visible: tab.isChosen
            color: tab.enabled ? Theme.accent : Theme.disabledText
        }
    }
}
