import QtQuick
import Quillmere

// A line of text to be written. The keys that edit text belong to it while it has the keyboard; Escape only where
// `takesEscape` says so, else that goes on to what is around it. Its children stand at its end.
FocusScope {
    id: field

    property alias text: input.text
    property string placeholder
    property string label: placeholder // for assistive technology
    property string symbol
    property string tip
    property bool isWrong: false
    property string wrongText // what is wrong, for the tooltip and assistive technology
    property bool takesEscape: false
    property alias isSearch: input.isSearch
    property alias maximumLength: input.maximumLength
    property alias inputMethodHints: input.inputMethodHints
    default property alias trailing: tail.data

    signal edited // by the user
    signal accepted
    signal escaped
    signal finished // the keyboard goes elsewhere

    function selectAll() {
        input.selectAll();
    }

    // Marks what stands ahead of that place, so that writing replaces it and leaves the rest.
    function selectFirst(count) {
        input.select(0, count);
    }

    // For the user, who is told of it as of an edit.
    function clear() {
        input.clear();
        edited();
    }

    implicitWidth: 220
    implicitHeight: Theme.controlHeight

    ButtonFace {
        anchors.fill: parent
        color: Theme.window
        outline: field.isWrong ? Theme.red : Theme.line
        isHovered: pointer.hovered && !input.activeFocus && field.enabled
        hasRing: input.activeFocus
    }
    HoverHandler {
        id: pointer
        cursorShape: field.enabled ? Qt.IBeamCursor : Qt.ArrowCursor
    }
    TapHandler {
        onTapped: input.forceActiveFocus(Qt.MouseFocusReason)
    }
    Symbol {
        id: icon
        anchors.left: parent.left
        anchors.leftMargin: Theme.unit * 2
        anchors.verticalCenter: parent.verticalCenter
        visible: field.symbol.length > 0
        name: field.symbol
        size: 14
        color: field.enabled ? Theme.secondText : Theme.disabledText
    }
    Item {
        anchors.left: icon.visible ? icon.right : parent.left
        anchors.leftMargin: Theme.unit * 2
        anchors.right: tail.left
        anchors.rightMargin: Theme.unit * 2
        height: parent.height
        clip: true

        BodyText {
            id: hint
            anchors.fill: parent
            visible: input.text.length === 0 && input.preeditText.length === 0
            text: field.placeholder
            color: field.enabled ? Theme.secondText : Theme.disabledText
        }
        TextInput {
            id: input

            property bool isSearch: false

            anchors.fill: parent
            focus: true
            activeFocusOnTab: true
            selectByMouse: true
            verticalAlignment: TextInput.AlignVCenter
            font.pixelSize: Theme.bodySize
            color: field.enabled ? Theme.text : Theme.disabledText
            selectionColor: Qt.tint(Theme.window, Qt.alpha(Theme.accent, 0.35))
            selectedTextColor: Theme.text
            Accessible.role: Accessible.EditableText
            Accessible.name: field.label
            Accessible.description: field.isWrong ? field.wrongText : field.tip
            Accessible.searchEdit: isSearch
            Keys.onShortcutOverride: event => event.accepted = field.takesEscape && event.key === Qt.Key_Escape
            Keys.onEscapePressed: event => field.takeEscape(event)
            onTextEdited: field.edited()
            onAccepted: field.accepted()
            onActiveFocusChanged: if (!activeFocus) field.finished()
        }
    }
    Row {
        id: tail
        anchors.right: parent.right
        anchors.rightMargin: width > 0 ? Theme.unit : 0
        height: parent.height
        spacing: Theme.unit
    }
    Tip {
        control: field
        isDue: pointer.hovered
        text: field.isWrong && field.wrongText.length > 0 ? field.wrongText
            : field.tip.length > 0 ? field.tip : hint.visible && hint.truncated ? field.placeholder : ""
    }

    function takeEscape(event) {
        event.accepted = takesEscape;
        if (takesEscape)
            escaped();
    }
}
