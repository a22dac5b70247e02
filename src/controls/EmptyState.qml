import QtQuick
import Quillmere

// What stands where there is nothing to show: a symbol, a line, and a second one where it helps.
Column {
    id: state

    required property string symbol
    required property string text
    property string detail

    spacing: Theme.unit * 2
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.description: detail

    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        name: state.symbol
        size: 32
        color: Theme.disabledText
    }
    BodyText {
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        text: state.text
        color: Theme.secondText
    }
    BodyText {
        width: parent.width
        visible: text.length > 0
        horizontalAlignment: Text.AlignHCenter
        text: state.detail
        color: Theme.secondText
        font.pixelSize: Theme.smallSize
        wrapMode: Text.Wrap
        elide: Text.ElideNone
    }
}
