import QtQuick
import Quillmere

// A field that looks for something. With text in it there is a button that clears it, as Escape does; an empty field lets
// Escape go on. How much was found stands ahead of the button where it is told.
InputField {
    id: field

    required property string clearLabel
    property string countText

    signal cleared

    function clearAll() {
        clear();
        cleared();
        forceActiveFocus(Qt.OtherFocusReason);
    }

    symbol: "magnifyingglass"
    isSearch: true
    takesEscape: text.length > 0
    onEscaped: clearAll()

    BodyText {
        anchors.verticalCenter: parent ? parent.verticalCenter : undefined
        visible: field.text.length > 0 && text.length > 0
        text: field.countText
        color: field.enabled ? Theme.secondText : Theme.disabledText
        font.pixelSize: Theme.smallSize
    }
    IconButton {
        anchors.verticalCenter: parent ? parent.verticalCenter : undefined
        visible: field.text.length > 0
        implicitWidth: 22
        implicitHeight: 22
        focusPolicy: Qt.NoFocus // by the keyboard Escape does it
        symbol: "xmark.circle.fill"
        symbolSize: 13
        label: field.clearLabel
        tip: field.clearLabel
        onClicked: field.clearAll()
    }
}
