pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Quillmere

// One choice out of a short list that opens below it, as wide as its widest. `shownText` stands on it also when it is none of the
// choices.
T.ComboBox {
    id: picker

    required property string label
    required property string shownText
    required property int chosenIndex // -1 where it is none of the choices

    signal chosen(int index)

    readonly property bool isExpanded: popup.visible

    readonly property int heldWidth: TextRuler.widest(model, font)

    implicitWidth: Math.ceil(Math.max(implicitContentWidth, heldWidth)) + leftPadding + rightPadding
    implicitHeight: Theme.controlHeight
    leftPadding: Theme.unit * (mirrored ? 7 : 2.5)
    rightPadding: Theme.unit * (mirrored ? 2.5 : 7)
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    displayText: shownText
    currentIndex: chosenIndex
    onActivated: index => ask(index)
    Accessible.name: label
    Accessible.description: isExpanded && highlightedIndex >= 0 ? textAt(highlightedIndex) : shownText

    // The toolkit's own has gone to the choice already.
    function ask(index) {
        currentIndex = Qt.binding(() => chosenIndex);
        chosen(index);
    }

    font.pixelSize: Theme.bodySize
    contentItem: BodyText {
        text: picker.displayText
        color: picker.enabled ? Theme.text : Theme.disabledText
    }
    indicator: Symbol {
        anchors.right: parent.right
        anchors.rightMargin: Theme.unit * 2.5
        anchors.verticalCenter: parent.verticalCenter
        name: "chevron.down"
        size: 11
        color: picker.enabled ? Theme.secondText : Theme.disabledText
    }
    background: ButtonFace {
        color: Theme.raised
        outline: Theme.line
        isHovered: picker.hovered
        isDown: picker.down
        hasRing: picker.visualFocus
    }
    delegate: T.ItemDelegate {
        id: option

        required property int index
        required property string modelData

        width: ListView.view ? ListView.view.width : 0
        implicitHeight: 26
        leftPadding: Theme.unit * 2
        hoverEnabled: true
        highlighted: picker.highlightedIndex === index
        text: modelData
        Accessible.description: RowTexts.place(index, picker.count)
        Accessible.selectable: true
        Accessible.selected: highlighted
        checkable: true
        checked: picker.currentIndex === index
        contentItem: Row {
            spacing: Theme.unit * 1.5
            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                name: "checkmark"
                size: 12
                color: Theme.accent
                opacity: picker.currentIndex === option.index ? 1 : 0
            }
            BodyText {
                anchors.verticalCenter: parent.verticalCenter
                text: option.modelData
            }
        }
        background: Pill {
            radius: Theme.tileRadius
            color: option.highlighted ? Theme.selected : "transparent"
        }
    }
    popup: T.Popup {
        readonly property string title: picker.label // for assistive technology
        y: picker.height + Theme.unit
        width: Math.max(picker.width, 120)
        padding: Theme.unit
        implicitHeight: implicitContentHeight + topPadding + bottomPadding
        margins: Theme.unit
        contentItem: ListView {
            clip: true
            implicitHeight: contentHeight
            model: picker.popup.visible ? picker.delegateModel : null
            currentIndex: picker.highlightedIndex
            Accessible.role: Accessible.List
            Accessible.name: picker.label
            highlightMoveDuration: 0
        }
        background: Pill {
            color: Theme.raised
            radius: Theme.controlRadius
            borderColor: Theme.line
        }
    }
}
